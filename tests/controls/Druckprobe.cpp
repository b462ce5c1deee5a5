#include "Druckprobe.h"

#include "Druckname.h"

#include <QFileInfo>
#include <QFont>
#include <QPainter>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

// Nimbus Sans says that its letters reach so far above and below their line, in sizes; the program
// that reads the file makes a word's box from it.
constexpr double hinauf = 1.075;
constexpr double hinab = 0.299;

Druckwort gelesenesWort(const QXmlStreamAttributes &lage, int seite)
{
    const auto zahl = [&lage](const char *name) {
        return lage.value(QLatin1String(name)).toDouble();
    };
    Druckwort wort;
    wort.seite = seite;
    wort.x = zahl("xMin");
    wort.rechts = zahl("xMax");
    wort.groesse = (zahl("yMax") - zahl("yMin")) / (hinauf + hinab);
    wort.grundlinie = zahl("yMin") + hinauf * wort.groesse;
    return wort;
}

} // namespace

Druckprobe::Druckprobe(const QPageLayout &seite) : m_seite(seite)
{
    m_seite.setMode(QPageLayout::FullPageMode);
}

QPageLayout Druckprobe::papier(QPageSize::PageSizeId groesse, QPageLayout::Orientation lage,
                               const QMarginsF &raender)
{
    return {QPageSize(groesse), lage, raender, QPageLayout::Point};
}

Drucktuer Druckprobe::tuer()
{
    return [this](QWidget *worueber, const Druckauftrag &auftrag) {
        fenster = worueber;
        drucke(auftrag);
    };
}

void Druckprobe::drucke(const Druckauftrag &auftrag)
{
    ++auftraege;
    m_gelesenes = {};
    titel = auftrag.titel;
    name = druckname(auftrag);
    QPrinter drucker(QPrinter::HighResolution);
    drucker.setOutputFormat(QPrinter::PdfFormat);
    drucker.setPageLayout(m_seite);
    drucker.setOutputFileName(pdf());
    drucker.setDocName(auftrag.titel);
    const auto fehler = ::drucke(drucker, auftrag);
    QVERIFY2(!fehler, qPrintable(fehler.value_or(QString())));
}

Druckprobe::Gelesenes &Druckprobe::gelesenes() const
{
    const QDateTime geschrieben = QFileInfo(pdf()).lastModified();
    if (m_gelesenes.geschrieben != geschrieben) {
        m_gelesenes = {geschrieben, {}, {}};
    }
    return m_gelesenes;
}

/// Most tests look at one file again and again, and to begin a program takes longer than to read a
/// page: the same is asked once.
QByteArray Druckprobe::befrage(const QString &programm, const QStringList &argumente) const
{
    QByteArray &antwort = gelesenes().antworten[QStringList(programm) + argumente];
    if (!antwort.isNull()) {
        return antwort;
    }
    QProcess prozess;
    // The sanitizer's settings are for the tests, not for what they start.
    prozess.start(programm, argumente);
    prozess.waitForFinished();
    const bool gelungen = prozess.exitStatus() == QProcess::NormalExit && prozess.exitCode() == 0;
    if (!gelungen) {
        qWarning() << programm << argumente << prozess.readAllStandardError();
    }
    antwort = prozess.readAllStandardOutput();
    return antwort;
}

QList<Druckwort> Druckprobe::worte() const
{
    const QByteArray text =
        befrage(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), pdf(), QStringLiteral("-")});
    std::optional<QList<Druckwort>> &worte = gelesenes().worte;
    if (worte) {
        return *worte;
    }
    worte.emplace();
    QXmlStreamReader leser(text);
    leser.setEntityExpansionLimit(0);
    int seite = 0;
    while (!leser.atEnd()) {
        if (leser.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (leser.name() == QLatin1String("page")) {
            ++seite;
        } else if (leser.name() == QLatin1String("word")) {
            *worte << gelesenesWort(leser.attributes(), seite);
            worte->last().text = leser.readElementText();
        }
    }
    return *worte;
}

QStringList Druckprobe::zeilen(int seite) const
{
    constexpr double gleicheLinie = 0.5;
    QList<Druckwort> alle = worte();
    erase_if(alle, [seite](const Druckwort &wort) { return wort.seite != seite; });
    std::sort(alle.begin(), alle.end(), [](const Druckwort &a, const Druckwort &b) {
        const bool nebeneinander = qAbs(a.grundlinie - b.grundlinie) < gleicheLinie;
        return nebeneinander ? a.x < b.x : a.grundlinie < b.grundlinie;
    });
    QStringList zeilen;
    double linie = -1;
    for (const Druckwort &wort : std::as_const(alle)) {
        if (zeilen.isEmpty() || qAbs(wort.grundlinie - linie) >= gleicheLinie) {
            zeilen << wort.text;
        } else {
            zeilen.last() += u' ' + wort.text;
        }
        linie = wort.grundlinie;
    }
    return zeilen;
}

int Druckprobe::seiten() const
{
    static const QRegularExpression angabe(QStringLiteral("Pages:\\s*(\\d+)"));
    const QString text = QString::fromUtf8(befrage(QStringLiteral("pdfinfo"), {pdf()}));
    return angabe.match(text).captured(1).toInt();
}

QSizeF Druckprobe::seitengroesse() const
{
    static const QRegularExpression angabe(
        QStringLiteral("Page size:\\s*([\\d.]+) x ([\\d.]+) pts"));
    const QString text = QString::fromUtf8(befrage(QStringLiteral("pdfinfo"), {pdf()}));
    const auto treffer = angabe.match(text);
    return {treffer.captured(1).toDouble(), treffer.captured(2).toDouble()};
}

QImage Druckprobe::bild(int seite, int pixelJePunkt) const
{
    const QString nummer = QString::number(seite);
    return QImage::fromData(
        befrage(QStringLiteral("pdftoppm"),
                {QStringLiteral("-r"), QString::number(72 * pixelJePunkt), QStringLiteral("-f"),
                 nummer, QStringLiteral("-l"), nummer, pdf()}));
}

QStringList Druckprobe::schriften() const
{
    QStringList namen;
    const QString text = QString::fromUtf8(befrage(QStringLiteral("pdffonts"), {pdf()}));
    const QStringList zeilen = text.split(u'\n', Qt::SkipEmptyParts);
    for (const QString &zeile : zeilen.mid(2)) {
        namen << zeile.section(u' ', 0, 0);
    }
    return namen;
}

int Druckprobe::bilder() const
{
    constexpr qsizetype kopfzeilen = 2;
    const QString text =
        QString::fromUtf8(befrage(QStringLiteral("pdfimages"), {QStringLiteral("-list"), pdf()}));
    return static_cast<int>(text.split(u'\n', Qt::SkipEmptyParts).mid(kopfzeilen).size());
}

Druckwort finde(const QList<Druckwort> &worte, const QString &text)
{
    const auto treffer = std::find_if(worte.begin(), worte.end(),
                                      [&text](const Druckwort &wort) { return wort.text == text; });
    return treffer == worte.end() ? Druckwort() : *treffer;
}

Druckauftrag beziffert(int seiten)
{
    return {QStringLiteral("Probe"), [seiten](const QPageLayout &) { return seiten; },
            [](QPainter &maler, const QPageLayout &, int nummer) {
                QFont schrift(QStringLiteral("Helvetica"));
                schrift.setPixelSize(20);
                maler.setFont(schrift);
                maler.drawText(QPointF(100, 100), QStringLiteral("Seite %1").arg(nummer));
            }};
}

QString probeworte(int anzahl)
{
    QStringList alle;
    for (int i = 1; i <= anzahl; ++i) {
        alle << QStringLiteral("wort%1").arg(i, 4, 10, QLatin1Char('0'));
    }
    return alle.join(QLatin1Char(' '));
}
