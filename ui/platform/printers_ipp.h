#pragma once

#include "ui/platform/printers.h"

#include <cups/cups.h>

#include <memory>

namespace quillon::ui {

struct IppDeleter
{
    void operator()(ipp_t* message) const noexcept { ippDelete(message); }
};

struct HttpDeleter
{
    void operator()(http_t* connection) const noexcept { httpClose(connection); }
};

/// A request to the print service, or its answer.
using IppMessage = std::unique_ptr<ipp_t, IppDeleter>;

/// An open line to the print service.
class IppConnection
{
public:
    /// @param server  socket path or host; empty for the one that the desktop is set up for
    /// @throws PrintError when no service answers
    explicit IppConnection(const QByteArray& server);

    /// Sends a request, with a document where one is given.
    /// @param source  what an error is about
    /// @throws PrintError when the service refuses it or falls silent for seconds
    [[nodiscard]] IppMessage Ask(IppMessage request, const QString& source, const QByteArray& document = {});

private:
    std::unique_ptr<http_t, HttpDeleter> m_http;
};

/// A new request in the name of the person at the desktop.
[[nodiscard]] IppMessage IppRequest(ipp_op_t operation);
/// The same, about one printer.
[[nodiscard]] IppMessage IppRequestAbout(ipp_op_t operation, const QString& printer);
/// Asks for these attributes and no others.
void Want(ipp_t& request, std::initializer_list<const char*> attributes);

/// Attributes of an answer, with what stands for one that is missing.
[[nodiscard]] int IntegerIn(ipp_t& answer, const char* attribute, int missing);
[[nodiscard]] QString TextIn(ipp_t& answer, const char* attribute);
[[nodiscard]] QStringList TextsIn(ipp_t& answer, const char* attribute);

} // namespace quillon::ui
