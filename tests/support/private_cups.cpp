#include "tests/support/private_cups.h"

#include <QElapsedTimer>
#include <QFile>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QTest>

#include <clocale>
#include <sstream>
#include <stdexcept>

#include <csignal>

#include <sys/prctl.h>

namespace quillon::test {

namespace {

namespace fs = std::filesystem;

constexpr int kPatienceMilliseconds = 20000;
constexpr const char* kSocket = "run/cups.sock";

std::string Replaced(std::string text, const std::string& what, const std::string& by)
{
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size())) {
        text.replace(at, what.size(), by);
    }
    return text;
}

std::string SupportFile(const std::string& name)
{
    QFile file(QString::fromStdString(QUILLON_PRIVATE_CUPS_FOLDER "/" + name));
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("no " + name);
    }
    return file.readAll().toStdString();
}

QString Program(const QString& name)
{
    const QString found = QStandardPaths::findExecutable(name);
    return found.isEmpty() ? QStringLiteral("/usr/sbin/") + name : found;
}

void Signal(const QProcess& process, int signal)
{
    if (process.state() == QProcess::Running) {
        ::kill(static_cast<pid_t>(process.processId()), signal);
    }
}

std::string Entry(const PrivateQueue& queue, const std::string& caught)
{
    std::ostringstream entry;
    entry << "<Printer " << queue.name << ">\nDeviceURI catch:" << caught << queue.fault << "\nState "
          << (queue.stopped ? "Stopped" : "Idle") << "\nAccepting " << (queue.accepting ? "Yes" : "No")
          << "\nErrorPolicy " << queue.policy << "\nShared No\n";
    if (!queue.message.empty()) {
        entry << "StateMessage " << queue.message << '\n';
    }
    entry << "</Printer>\n";
    return entry.str();
}

} // namespace

PrivateCups::PrivateCups(const std::vector<PrivateQueue>& queues, const std::string& settings)
{
    LayOut(queues, settings);
    Start();
}

PrivateCups::~PrivateCups()
{
    Signal(m_service, SIGCONT);
    m_service.terminate();
    if (!m_service.waitForFinished(kPatienceMilliseconds)) {
        m_service.kill();
        m_service.waitForFinished();
    }
}

void PrivateCups::LayOut(const std::vector<PrivateQueue>& queues, const std::string& settings)
{
    const std::string root = m_folder.Path().string();
    for (const char* folder : {"etc/ppd", "spool", "tmp", "cache", "run", "log", "bin/backend", "caught"}) {
        fs::create_directories(m_folder / folder);
    }
    for (const auto& part : fs::directory_iterator("/usr/lib/cups")) {
        if (part.path().filename() != "backend") {
            fs::create_symlink(part.path(), m_folder / "bin" / part.path().filename());
        }
    }
    // Without permissions for others, so that the service runs it as the user that these folders belong to.
    fs::permissions(m_folder.Put("bin/backend/catch", SupportFile("catch.sh")), fs::perms::owner_all);
    m_folder.Put("etc/cups-files.conf", Replaced(SupportFile("cups-files.conf"), "@", root));
    m_folder.Put("etc/cupsd.conf", settings + Replaced(SupportFile("cupsd.conf"), "@", root));
    std::string printers;
    for (const PrivateQueue& queue : queues) {
        printers += Entry(queue, root + "/caught");
        if (queue.hasDescription) {
            m_folder.Put("etc/ppd/" + queue.name + ".ppd", Replaced(SupportFile("queue.ppd"), "@PAPER@", queue.paper));
        }
    }
    m_folder.Put("etc/printers.conf", printers);
}

void PrivateCups::Start()
{
    const QString etc = QString::fromStdString((m_folder / "etc").string());
    m_service.setProcessChannelMode(QProcess::MergedChannels);
    // Tests that are killed leave no service behind.
    m_service.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    // It answers in the language of its client, and tests read its answers: they ask in one, whatever they run in.
    std::setlocale(LC_MESSAGES, "C.UTF-8"); // plain "C" would count as none chosen
    m_service.start(Program(QStringLiteral("cupsd")),
                    {QStringLiteral("-f"), QStringLiteral("-c"), etc + QStringLiteral("/cupsd.conf"),
                     QStringLiteral("-s"), etc + QStringLiteral("/cups-files.conf")});
    const QElapsedTimer waiting = [] {
        QElapsedTimer timer;
        timer.start();
        return timer;
    }();
    while (waiting.elapsed() < kPatienceMilliseconds && m_service.state() != QProcess::NotRunning) {
        QLocalSocket socket;
        socket.connectToServer(QString::fromUtf8(Server()));
        if (socket.waitForConnected(100)) {
            return;
        }
        m_service.waitForFinished(10);
    }
    throw std::runtime_error("the print service does not start: " + m_service.errorString().toStdString() + "\n" +
                             m_service.readAll().toStdString() + m_folder.Get("log/error").value_or(""));
}

QByteArray PrivateCups::Server() const
{
    return QByteArray::fromStdString((m_folder / kSocket).string());
}

void PrivateCups::FallSilent()
{
    Signal(m_service, SIGSTOP);
}

void PrivateCups::Die()
{
    m_service.kill();
    m_service.waitForFinished();
}

void PrivateCups::Remove(const std::string& queue)
{
    QProcess lpadmin;
    lpadmin.start(Program(QStringLiteral("lpadmin")), {QStringLiteral("-h"), QString::fromUtf8(Server()),
                                                       QStringLiteral("-x"), QString::fromStdString(queue)});
    if (!lpadmin.waitForFinished() || lpadmin.exitCode() != 0) {
        throw std::runtime_error("lpadmin: " + lpadmin.readAllStandardError().toStdString());
    }
}

void PrivateCups::LetGo()
{
    m_folder.Put("caught/go", "");
}

QString PrivateCups::Caught(int job) const
{
    QString path = QString::fromStdString((m_folder / "caught").string()) + QStringLiteral("/%1.pdf").arg(job);
    if (!QTest::qWaitFor([&path] { return QFile::exists(path); }, kPatienceMilliseconds)) {
        throw std::runtime_error("the print service caught no job " + std::to_string(job));
    }
    return path;
}

std::string PrivateCups::Ticket(int job) const
{
    return m_folder.Get("caught/" + std::to_string(job) + ".txt").value_or("");
}

bool PrivateCups::HasCaught(int job) const
{
    return fs::exists(m_folder / ("caught/" + std::to_string(job) + ".pdf"));
}

std::vector<std::string> PrivateCups::Requests() const
{
    // localhost - - [21/Nov/2026:15:37:10 +0000] "POST / HTTP/1.1" 200 185 CUPS-Get-Printers successful-ok
    std::istringstream log(m_folder.Get("log/access").value_or(""));
    std::vector<std::string> requests;
    for (std::string line; std::getline(log, line);) {
        const std::size_t end = line.rfind(' ');
        const std::size_t start = end == std::string::npos ? end : line.rfind(' ', end - 1);
        if (start != std::string::npos) {
            requests.push_back(line.substr(start + 1, end - start - 1));
        }
    }
    return requests;
}

} // namespace quillon::test
