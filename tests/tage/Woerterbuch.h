#pragma once

#include <QTranslator>

/// Knows one word.
class Woerterbuch : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char * /*kontext*/, const char *text, const char * /*unterscheidung*/,
                      int /*anzahl*/) const override
    {
        return qstrcmp(text, "Gicht") == 0 ? QStringLiteral("Gout") : QString();
    }
};
