#pragma once

#include <QCoreApplication>
#include <QTranslator>

namespace quillon::test {

inline const QString kPseudoBegin = QStringLiteral("[!! ");
inline const QString kPseudoEnd = QStringLiteral(" !!]");

/// A language that nobody speaks: every text that can be translated is longer, as most languages are than English, and
/// stands between marks, so that a text without them shows that it cannot be translated. In force while it lives.
class PseudoTranslator : public QTranslator
{
public:
    PseudoTranslator() { QCoreApplication::installTranslator(this); }

    ~PseudoTranslator() override { QCoreApplication::removeTranslator(this); }

    PseudoTranslator(const PseudoTranslator&) = delete;
    PseudoTranslator& operator=(const PseudoTranslator&) = delete;

    [[nodiscard]] bool isEmpty() const override { return false; }

    [[nodiscard]] QString translate(const char* /*context*/, const char* source, const char* /*hint*/,
                                    int /*count*/) const override
    {
        const QString text = QString::fromUtf8(source);
        const qsizetype longer = text.size() * 2 / 5;
        return kPseudoBegin + text + u' ' + QString(longer, u'~') + kPseudoEnd;
    }
};

} // namespace quillon::test
