#include "Einzeilig.h"

QString einzeilig(const QString &text)
{
    QString ergebnis;
    for (const QChar zeichen : text) {
        if (zeichen.category() == QChar::Other_Control) {
            ergebnis +=
                QStringLiteral("\\x%1").arg(uint(zeichen.unicode()), 2, 16, QLatin1Char('0'));
        } else {
            ergebnis += zeichen;
        }
    }
    return ergebnis;
}
