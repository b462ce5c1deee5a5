#include "Satztext.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

const QString postenfeld = QStringLiteral("posten");
const QString tagefeld = QStringLiteral("tage");

} // namespace

QJsonValue feldAlsJson(const QString &name, const QVariant &wert)
{
    if (name == postenfeld) {
        return QJsonDocument::fromJson(wert.toString().toUtf8()).array();
    }
    if (name == tagefeld) {
        return QJsonDocument::fromJson(wert.toString().toUtf8()).object();
    }
    return wert.isNull() ? QJsonValue(QJsonValue::Null) : QJsonValue::fromVariant(wert);
}

QVariant feldAusJson(const QString &name, const QJsonValue &wert)
{
    if (name == postenfeld) {
        return QString::fromUtf8(QJsonDocument(wert.toArray()).toJson(QJsonDocument::Compact));
    }
    if (name == tagefeld) {
        return QString::fromUtf8(QJsonDocument(wert.toObject()).toJson(QJsonDocument::Compact));
    }
    return wert.isNull() || wert.isUndefined() ? QVariant() : wert.toVariant();
}
