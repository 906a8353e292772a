#include "ui/platform/printers_ipp.h"

#include <QFile>

#include <array>
#include <cerrno>
#include <cstring>
#include <vector>

#include <sys/mman.h>
#include <unistd.h>

namespace quillon::ui {

namespace {

constexpr int kConnectMilliseconds = 3000;
constexpr double kSilenceSeconds = 3.0;

int GiveUp(http_t*, void*)
{
    return 0;
}

// A service that wants a password is refused: the library's own way is to ask on the terminal, where nobody looks.
const char* NoPassword(const char*, http_t*, const char*, const char*, void*)
{
    return nullptr;
}

PrintError LastError(const QString& source)
{
    const ipp_status_t status = cupsLastError();
    // The library calls silence an internal error whose text is "Success".
    if (status <= IPP_STATUS_OK_EVENTS_COMPLETE || status == IPP_STATUS_ERROR_INTERNAL) {
        return {IPP_STATUS_ERROR_SERVICE_UNAVAILABLE,
                QString::fromUtf8(ippErrorString(IPP_STATUS_ERROR_SERVICE_UNAVAILABLE)), source};
    }
    return {static_cast<int>(status), QString::fromUtf8(cupsLastErrorString()), source};
}

/// A document in memory that has a descriptor, as the library wants to read it.
class MemoryFile
{
public:
    explicit MemoryFile(const QByteArray& bytes)
        : m_descriptor(::memfd_create("page", MFD_CLOEXEC))
    {
        QFile file;
        m_whole = m_descriptor >= 0 && file.open(m_descriptor, QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                  file.write(bytes) == bytes.size();
    }

    ~MemoryFile()
    {
        if (m_descriptor >= 0) {
            ::close(m_descriptor);
        }
    }

    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    [[nodiscard]] int Descriptor() const noexcept { return m_descriptor; }

    [[nodiscard]] bool IsWhole() const noexcept { return m_whole; }

private:
    int m_descriptor;
    bool m_whole = false;
};

ipp_attribute_t* Find(ipp_t& answer, const char* attribute)
{
    return ippFindAttribute(&answer, attribute, IPP_TAG_ZERO);
}

} // namespace

IppConnection::IppConnection(const QByteArray& server)
    : m_http(httpConnect2(server.isEmpty() ? cupsServer() : server.constData(), ippPort(), nullptr, AF_UNSPEC,
                          cupsEncryption(), 1, kConnectMilliseconds, nullptr))
{
    if (!m_http) {
        throw LastError(QStringLiteral("CUPS"));
    }
    httpSetTimeout(m_http.get(), kSilenceSeconds, GiveUp, nullptr);
    cupsSetPasswordCB2(NoPassword, nullptr);
}

IppMessage IppConnection::Ask(IppMessage request, const QString& source, const QByteArray& document)
{
    IppMessage answer;
    if (document.isEmpty()) {
        answer.reset(cupsDoRequest(m_http.get(), request.release(), "/"));
    } else {
        const MemoryFile file(document);
        if (!file.IsWhole()) {
            throw PrintError(ENOMEM, QString::fromLocal8Bit(std::strerror(ENOMEM)), QStringLiteral("Quillon"));
        }
        answer.reset(cupsDoIORequest(m_http.get(), request.release(), "/", file.Descriptor(), -1));
    }
    if (!answer || ippGetStatusCode(answer.get()) > IPP_STATUS_OK_EVENTS_COMPLETE) {
        throw LastError(source);
    }
    return answer;
}

IppMessage IppRequest(ipp_op_t operation)
{
    IppMessage request(ippNewRequest(operation));
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    return request;
}

IppMessage IppRequestAbout(ipp_op_t operation, const QString& printer)
{
    std::array<char, HTTP_MAX_URI> uri{};
    const QByteArray path = "/printers/" + printer.toUtf8();
    httpAssembleURI(HTTP_URI_CODING_ALL, uri.data(), static_cast<int>(uri.size()), "ipp", nullptr, "localhost", 0,
                    path.constData());
    IppMessage request(ippNewRequest(operation));
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri.data());
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    return request;
}

void Want(ipp_t& request, std::initializer_list<const char*> attributes)
{
    const std::vector<const char*> names(attributes);
    ippAddStrings(&request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", static_cast<int>(names.size()),
                  nullptr, names.data());
}

int IntegerIn(ipp_t& answer, const char* attribute, int missing)
{
    ipp_attribute_t* found = Find(answer, attribute);
    if (found == nullptr) {
        return missing;
    }
    const ipp_tag_t tag = ippGetValueTag(found);
    return tag == IPP_TAG_INTEGER || tag == IPP_TAG_ENUM ? ippGetInteger(found, 0) : missing;
}

QString TextIn(ipp_t& answer, const char* attribute)
{
    return TextsIn(answer, attribute).value(0);
}

QStringList TextsIn(ipp_t& answer, const char* attribute)
{
    QStringList texts;
    if (ipp_attribute_t* found = Find(answer, attribute)) {
        for (int i = 0; i < ippGetCount(found); ++i) {
            texts << QString::fromUtf8(ippGetString(found, i, nullptr));
        }
    }
    return texts;
}

} // namespace quillon::ui
