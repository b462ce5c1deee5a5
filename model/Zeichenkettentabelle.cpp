#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

QString localizedString(const QString &schluessel)
{
    if (schluessel.isNull()) {
        return {};
    }
    return QCoreApplication::translate("Mahlberg", schluessel.toUtf8().constData());
}
