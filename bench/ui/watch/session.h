#pragma once

#include "bench/ui/watch/clocks.h"

#include <QElapsedTimer>
#include <QJsonObject>
#include <QObject>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <vector>

namespace quillon::bench {

/// One run of a program under watch: ends the splash window when there is one, waits until the main window has settled,
/// measures, writes what was found as a line of JSON, and ends the program.
class Session : public QObject
{
public:
    Session();

private:
    /// What became of one key.
    struct Key
    {
        Moment pressed;
        Moment repainted;
        int flushes = 0;
    };

    void OnFlush(QWindow& window, const Moment& done);
    void OnFirstFlush(QWindow& window, const Moment& done);
    void EndSplash(QWidget& splash);
    void LookAround();
    void PressKey();
    void Finish();

    QTimer m_timer;
    QElapsedTimer m_sinceFlush;
    QWindow* m_splash = nullptr;
    QWindow* m_main = nullptr;
    Moment m_splashPainted;
    Moment m_splashClicked;
    Moment m_mainPainted;
    std::vector<Key> m_keys;
    int m_keysWanted;
};

} // namespace quillon::bench
