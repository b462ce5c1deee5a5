#include "Klientenmappe.h"

#include "Aktentabellen.h"
#include "Dateiwechsel.h"
#include "Druckname.h"
#include "EngeRechte.h"
#include "Klientenblatt.h"
#include "Klientenuebergabe.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPrinter>

#include <algorithm>
#include <array>
#include <utility>

namespace {

/// A table of the folder.
struct Mappentabelle
{
    const char *name; ///< key into the string table
    Csv::Tabelle (*tabelle)(const Klientenakte &);
    bool auchLeer = true; ///< it is there for a client of whom nothing stands in it, too
};

constexpr std::array<Mappentabelle, 6> mappentabellen = {{
    {QT_TRANSLATE_NOOP("Mahlberg", "Person"),
     [](const Klientenakte &akte) {
         return personentabelle(akte.person);
     }},
    {QT_TRANSLATE_NOOP("Mahlberg", "Besuche"),
     [](const Klientenakte &akte) {
         return besuchstabelle(akte.besuche);
     }},
    {QT_TRANSLATE_NOOP("Mahlberg", "Pläne"),
     [](const Klientenakte &akte) {
         return plaenetabelle(akte.plaene);
     }},
    {QT_TRANSLATE_NOOP("Mahlberg", "Planzeilen"),
     [](const Klientenakte &akte) {
         return planzeilentabelle(akte.plaene);
     }},
    {QT_TRANSLATE_NOOP("Mahlberg", "Aufzeichnungen"),
     [](const Klientenakte &akte) { return aufzeichnungstabelle(akte.aufzeichnungen); }, false},
    {QT_TRANSLATE_NOOP("Mahlberg", "Tageszeilen"),
     [](const Klientenakte &akte) { return tageszeilentabelle(akte.aufzeichnungen); }, false},
}};

QString aktenname()
{
    return localizedString(QStringLiteral("Akte"));
}

/// What still waits to be written here counts as written once: at the other desk it is a record
/// like all others.
Klientenakte geschrieben(Klientenakte akte)
{
    const auto zaehle = [](auto &satz) {
        satz.fassung = std::max(satz.fassung, 1);
    };
    zaehle(akte.person);
    std::for_each(akte.besuche.begin(), akte.besuche.end(), zaehle);
    std::for_each(akte.plaene.begin(), akte.plaene.end(), zaehle);
    std::for_each(akte.aufzeichnungen.begin(), akte.aufzeichnungen.end(), zaehle);
    return akte;
}

/// Safely on the disk when it ends well.
bool schreibe(const QString &path, const QByteArray &bytes)
{
    Dateiwechsel datei(path);
    return datei.bereite(bytes) && datei.vollziehe();
}

/// On the paper of the user's country, upright.
bool schreibePdf(const QString &path, const Druckauftrag &auftrag)
{
    const bool us = QLocale().measurementSystem() == QLocale::ImperialUSSystem;
    QPrinter drucker(QPrinter::HighResolution);
    drucker.setOutputFormat(QPrinter::PdfFormat);
    drucker.setPageLayout(
        QPageLayout(QPageSize(us ? QPageSize::Letter : QPageSize::A4), QPageLayout::Portrait, {}));
    drucker.setDocName(druckname(auftrag));
    drucker.setOutputFileName(path);
    return !drucke(drucker, auftrag);
}

/// Fills a folder. The name of the file that could not be written; null when all are.
QString fuelle(const QDir &ordner, const Klientenakte &akte, const QDate &heute)
{
    QString pdf = aktenname() + QStringLiteral(".pdf");
    if (!schreibePdf(ordner.filePath(pdf), klientenblatt(akte, heute))) {
        return pdf;
    }
    for (const Mappentabelle &eine : mappentabellen) {
        const Csv::Tabelle tabelle = eine.tabelle(akte);
        if (tabelle.zeilen.isEmpty() && !eine.auchLeer) {
            continue;
        }
        QString csv = localizedString(QString::fromUtf8(eine.name)) + QStringLiteral(".csv");
        if (!schreibe(ordner.filePath(csv),
                      Csv::schreiben(tabelle, Csv::formDesTabellenprogramms()))) {
            return csv;
        }
    }
    const QString json = aktenname() + QStringLiteral(".json");
    return schreibe(ordner.filePath(json), akteAlsText(geschrieben(akte))) ? QString() : json;
}

/// A path in the folder that nothing has yet.
QString freierPfad(const QDir &in, const QString &name)
{
    const auto vergeben = [](const QString &path) {
        const QFileInfo info(path);
        return info.exists() || info.isSymLink(); // which may lead nowhere
    };
    QString path = in.filePath(name);
    for (int nummer = 2; vergeben(path); ++nummer) {
        path = in.filePath(QStringLiteral("%1 (%2)").arg(name, QString::number(nummer)));
    }
    return path;
}

/// A folder that is gone with this unless it got its proper name meanwhile.
class Entwurf
{
public:
    explicit Entwurf(QString path) : m_path(std::move(path)), m_angelegt(QDir().mkdir(m_path)) {}
    ~Entwurf()
    {
        if (m_angelegt) {
            QDir(m_path).removeRecursively();
        }
    }
    Entwurf(const Entwurf &) = delete;
    Entwurf &operator=(const Entwurf &) = delete;

    const QString &path() const { return m_path; }
    bool angelegt() const { return m_angelegt; }

private:
    QString m_path;
    bool m_angelegt;
};

Mappenausgang misslungen(const QString &satz, const QString &path)
{
    return {.grund = satz.arg(QDir::toNativeSeparators(path))};
}

} // namespace

QString mappenname(const QString &name, const QDate &heute)
{
    constexpr qsizetype laengster = 60; // letters; disks take 255 bytes, and the day comes behind
    QString titel;
    for (const QChar zeichen : name.simplified()) {
        const bool versteckt = titel.isEmpty() && (zeichen == u'.' || zeichen.isSpace());
        if (!versteckt && zeichen.category() != QChar::Other_Control) {
            titel += zeichen;
        }
    }
    titel.truncate(laengster);
    if (!titel.isEmpty() && titel.back().isHighSurrogate()) { // the half of a sign
        titel.chop(1);
    }
    Druckauftrag auftrag; // files of a client and their folder are named alike
    auftrag.titel = titel;
    auftrag.tag = heute;
    return druckname(auftrag);
}

Mappenausgang schreibeMappe(const QString &in, const Klientenakte &akte, const QDate &heute)
{
    const EngeRechte enge;
    const QDir dort(in);
    const QString ziel = freierPfad(dort, mappenname(akte.person.name, heute));
    // Beside its place, so that it gets there by its name alone. Until it is whole its name says
    // that it is not: should the power go meanwhile, whoever finds it knows what it is.
    const Entwurf entwurf(
        freierPfad(dort, localizedString(QStringLiteral("Akte (unvollständig)"))));
    if (!entwurf.angelegt()) {
        return misslungen(localizedString(QStringLiteral(
                              "Im Ordner „%1“ lässt sich nichts anlegen. Vielleicht "
                              "ist er nicht da, geschützt oder kein Platz mehr frei.")),
                          in);
    }
    const QString mangel = fuelle(QDir(entwurf.path()), akte, heute);
    if (!mangel.isEmpty()) {
        return misslungen(
            localizedString(QStringLiteral("Die Datei „%1“ lässt sich nicht schreiben. Vielleicht "
                                           "ist der Ordner geschützt oder kein Platz mehr frei.")),
            QDir(ziel).filePath(mangel));
    }
    if (!QDir().rename(entwurf.path(), ziel)) { // takes nothing's place
        return misslungen(
            localizedString(QStringLiteral("Der Ordner „%1“ lässt sich nicht anlegen.")), ziel);
    }
    return {.gelungen = true, .ordner = ziel};
}
