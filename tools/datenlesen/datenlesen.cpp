// Shows what is in a ".daten" file, or what is wrong with it.

#include "Archivdatei.h"
#include "Datenausgabe.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

namespace {

enum Ausgang { Gelungen = 0, Misslungen = 1, FalscherAufruf = 2 };

constexpr const char *gebrauch = "Usage: datenlesen [--csv] FILE\n"
                                 "       datenlesen --help\n"
                                 "Prints the foods in a .daten file as text, or as a table with "
                                 "--csv.\n"
                                 "Exit status: 0 read, 1 missing or damaged, 2 wrong usage.\n";

void melde(const QString &text)
{
    std::fputs(qUtf8Printable(QStringLiteral("datenlesen: ") + text + QLatin1Char('\n')), stderr);
}

bool druckt(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    const auto anzahl = static_cast<std::size_t>(bytes.size());
    return std::fwrite(bytes.constData(), 1, anzahl, stdout) == anzahl && std::fflush(stdout) == 0;
}

/// What keeps a file from being shown; null when nothing does.
QString hindernis(const Archivdatei::Inhalt &inhalt)
{
    switch (inhalt.zustand) {
    case Archivdatei::Zustand::Fehlt:
        return QStringLiteral("there is no such file");
    case Archivdatei::Zustand::Unlesbar:
        return inhalt.grund;
    case Archivdatei::Zustand::Beschaedigt:
        return QStringLiteral("damaged at byte %1: %2")
            .arg(QString::number(inhalt.archiv.position), inhalt.archiv.grund);
    case Archivdatei::Zustand::Gelesen:
        break;
    }
    return {};
}

/// What is odd about a file that was read all the same.
QStringList bemerkungen(const Archiver::Ergebnis &archiv)
{
    QStringList texte;
    const qsizetype doppelt = archiv.eintraege - archiv.verzeichnis.size();
    if (doppelt > 0) {
        texte += QStringLiteral("%1 entries left out, a later one has the same name").arg(doppelt);
    }
    if (archiv.rest > 0) {
        texte += QStringLiteral("%1 bytes follow the end of the data").arg(archiv.rest);
    }
    return texte;
}

Ausgang zeige(const QString &path, bool csv)
{
    const Archivdatei::Inhalt inhalt = Archivdatei::lesen(path);
    const QString grund = hindernis(inhalt);
    if (!grund.isNull()) {
        melde(path + QStringLiteral(": ") + grund);
        return Misslungen;
    }
    const QStringList texte = bemerkungen(inhalt.archiv);
    for (const QString &text : texte) {
        melde(path + QStringLiteral(": ") + text);
    }
    const auto &verzeichnis = inhalt.archiv.verzeichnis;
    const QString anzahl = QStringLiteral("Foods: %1\n").arg(verzeichnis.size());
    if (!druckt(csv ? alsCsv(verzeichnis) : anzahl + alsText(verzeichnis))) {
        melde(QStringLiteral("the output could not be written"));
        return Misslungen;
    }
    return Gelungen;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication programm(argc, argv);
    QStringList argumente = QCoreApplication::arguments().mid(1);
    if (argumente == QStringList(QStringLiteral("--help"))) {
        std::fputs(gebrauch, stdout);
        return Gelungen;
    }
    const bool csv = argumente.removeOne(QStringLiteral("--csv"));
    if (argumente.size() != 1 || argumente.first().startsWith(QStringLiteral("--"))) {
        std::fputs(gebrauch, stderr);
        return FalscherAufruf;
    }
    return zeige(argumente.first(), csv);
}
