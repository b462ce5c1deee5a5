#include "Druckname.h"

#include "Drucktuer.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>

QString druckname(const Druckauftrag &auftrag)
{
    constexpr qsizetype laengster = 80; // letters; disks take 255 bytes, an umlaut has two
    static const QRegularExpression verbotene(QStringLiteral("[/\\\\:*?\"<>|]"));
    QString dahinter = u' ' + auftrag.tag.toString(Qt::ISODate);
    if (!auftrag.form.isEmpty()) {
        dahinter += u' ' + auftrag.form;
    }
    const qsizetype platz = std::max<qsizetype>(0, laengster - dahinter.size());
    QString name = auftrag.titel.simplified().left(platz).trimmed() + dahinter;
    return name.replace(verbotene, QStringLiteral("-")).trimmed();
}

QString freiesPdf(const QString &ordner, const QString &name)
{
    const QDir dort(ordner);
    QString pfad = dort.filePath(name + QStringLiteral(".pdf"));
    for (int nummer = 2; QFile::exists(pfad); ++nummer) {
        pfad = dort.filePath(QStringLiteral("%1 (%2).pdf").arg(name, QString::number(nummer)));
    }
    return pfad;
}

QString dokumentenordner()
{
    const QString ordner = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(ordner).exists() ? ordner : QDir::homePath();
}
