#pragma once

#include "Archiver.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

/// A folder with files of the user's, thrown away at the end, and what lies in it.
class Dateiprobe
{
public:
    /// Without the lines for those who look after files.
    Dateiprobe() { QLoggingCategory::setFilterRules(QStringLiteral("mahlberg.dateien=false")); }

    QString path(const QString &name = QStringLiteral("Eigene.daten")) const
    {
        return m_ordner.filePath(name);
    }
    /// The names of all that is in the folder, or in one below it.
    QStringList dateien(const QString &unterordner = QStringLiteral(".")) const
    {
        return QDir(m_ordner.filePath(unterordner))
            .entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QByteArray bytes(const QString &name = QStringLiteral("Eigene.daten")) const
    {
        QFile datei(path(name));
        return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
    }
    /// Puts bytes there as another program would.
    void lege(const QByteArray &bytes, const QString &name = QStringLiteral("Eigene.daten")) const
    {
        QFile datei(path(name));
        QVERIFY(datei.open(QIODevice::WriteOnly | QIODevice::Truncate));
        QCOMPARE(datei.write(bytes), bytes.size());
    }
    /// Makes a file tell that it was last changed then.
    void datiere(const QDateTime &moment,
                 const QString &name = QStringLiteral("Eigene.daten")) const
    {
        QFile datei(path(name));
        QVERIFY(datei.open(QIODevice::ReadWrite));
        QVERIFY(datei.setFileTime(moment, QFileDevice::FileModificationTime));
    }
    void gibRechte(mode_t rechte, const QString &name = QStringLiteral(".")) const
    {
        QCOMPARE(chmod(QFile::encodeName(path(name)).constData(), rechte), 0);
    }

    static struct stat status(const QString &path)
    {
        struct stat angaben = {};
        stat(QFile::encodeName(path).constData(), &angaben);
        return angaben;
    }
    /// Who may do what with a file, like 0600.
    mode_t rechte(const QString &name = QStringLiteral("Eigene.daten")) const
    {
        return status(path(name)).st_mode & 0777U;
    }

private:
    QTemporaryDir m_ordner;
};

/// A store of foods that differs from others by its number and size.
inline Lebensmittelverzeichnis speisen(int nummer, int anzahl = 1)
{
    Lebensmittelverzeichnis alle;
    for (int i = 0; i < anzahl; ++i) {
        Datenmodul eine;
        eine.setName(QStringLiteral("Speise %1").arg(i));
        eine.setkal(static_cast<float>(nummer));
        alle.insert(eine.name(), eine);
    }
    return alle;
}

/// The bytes of such a store, as a file holds them.
inline QByteArray speisebytes(int nummer, int anzahl = 1)
{
    return Archiver::write(speisen(nummer, anzahl));
}
