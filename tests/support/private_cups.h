#pragma once

#include "tests/support/temp_folder.h"

#include <QByteArray>
#include <QProcess>
#include <QString>

#include <string>
#include <vector>

namespace quillon::test {

/// A queue of the tests' own print service. What is printed on it is caught in a folder.
struct PrivateQueue
{
    std::string name;
    std::string paper = "A4"; ///< "A4" or "Letter": 6.35 mm cannot be printed at three edges, 12.7 mm at the lower one
    std::string fault = {};   ///< "?fail" for a printer that fails, "?wait" for one that waits for LetGo()
    std::string policy = "abort-job"; ///< what the service does with a job that failed
    bool stopped = false;
    bool accepting = true;
    std::string message = {};   ///< what the person who stopped it said
    bool hasDescription = true; ///< without one, the service does not know the paper
};

/// A print service of the tests' own: a child of this process with its settings, socket and spool in a temporary
/// folder. The system's service is neither needed nor touched. Works for root and for other users.
class PrivateCups
{
public:
    /// Returns when the service answers.
    /// @param settings  lines of its settings besides those that it needs
    /// @throws std::runtime_error when it does not start, with what it wrote
    explicit PrivateCups(const std::vector<PrivateQueue>& queues, const std::string& settings = {});
    ~PrivateCups();
    PrivateCups(const PrivateCups&) = delete;
    PrivateCups& operator=(const PrivateCups&) = delete;

    /// Path of the socket.
    [[nodiscard]] QByteArray Server() const;
    /// Ends the service at once, as a crash does.
    void Die();
    /// Lets the service take requests and answer none, as one that is overloaded.
    void FallSilent();
    void Remove(const std::string& queue);
    /// Lets queues that wait go on.
    void LetGo();

    /// Path of a caught document. Waits until it is there.
    /// @throws std::runtime_error when it does not come
    [[nodiscard]] QString Caught(int job) const;
    /// Title and options of a caught job, a line each.
    [[nodiscard]] std::string Ticket(int job) const;
    [[nodiscard]] bool HasCaught(int job) const;

    /// Requests that the service has answered, by name: "CUPS-Get-Printers".
    [[nodiscard]] std::vector<std::string> Requests() const;

private:
    void LayOut(const std::vector<PrivateQueue>& queues, const std::string& settings);
    void Start();

    support::TempFolder m_folder;
    QProcess m_service;
};

} // namespace quillon::test
