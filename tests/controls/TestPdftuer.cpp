#include "Pdftuer.h"

#include "Druckprobe.h"
#include "Hindernisse.h"
#include "Hinweisstreifen.h"
#include "Seiteneinrichtung.h"

#include <QDir>
#include <QFile>
#include <QPainter>
#include <QProcess>
#include <QProgressDialog>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QTest>
#include <QVBoxLayout>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

/// Saving a print as a PDF without any printer: where to, what becomes of what is there, and what
/// is told.
class TestPdftuer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void withoutAChoiceTheDocumentsAreProposed();
    void theChosenFolderIsProposed();
    void aNameThatIsTakenGetsANumber();
    void thePagesComeOnThePaperOfTheSettings();
    void aFolderThatCanNotBeUsedIsTold_data();
    void aFolderThatCanNotBeUsedIsTold();
    void thePdfFolderOfTheSystemIsForgottenAgain();
    void whatCanNotBeWrittenIsToldAndAnotherPlaceAskedFor_data();
    void whatCanNotBeWrittenIsToldAndAnotherPlaceAskedFor();
    void withoutRoomForADraftItIsTold();
    void aFullDiskKeepsTheOldPdf_data();
    void aFullDiskKeepsTheOldPdf();
    void aProtectedFolderKeepsTheOldPdf();
    void cancellingWritesNothing();
    void stoppingOnTheWayKeepsTheOldPdf();
    void anOldPdfIsReplacedByAWholeOneOnly_data();
    void anOldPdfIsReplacedByAWholeOneOnly();
    void theNoticeSaysWhereItLiesAndOpensTheFolder();
    void aFolderThatDoesNotOpenIsTold();
    void aWindowAboveTellsInTheStripBelow();
    void withoutAStripAMessageTells();

private:
    bool sichere(const Druckauftrag &auftrag);
    QString pfad(const QString &name) const { return m_ordner->filePath(name); }
    static QString angabe(const QString &pdf, const QString &welche);
    static int seiten(const QString &pdf) { return angabe(pdf, u"Pages"_s).toInt(); }

    std::unique_ptr<QTemporaryDir> m_ordner;
    std::unique_ptr<QSettings> m_einstellungen;
    std::unique_ptr<QWidget> m_fenster;
    QWidget *m_darueber = nullptr; ///< the window that asks, when it lies above the other
    Hinweisstreifen *m_streifen = nullptr;
    QList<Dateifrage> m_fragen;
    QStringList m_antworten; ///< paths that are chosen; none any more: cancelled
    QList<Meldung> m_meldungen;
    QStringList m_geoeffnet;
    bool m_oeffnet = true;
};

namespace {

Druckauftrag auftrag(int seiten = 2)
{
    Druckauftrag auftrag = beziffert(seiten);
    auftrag.tag = QDate(2026, 11, 22);
    auftrag.form = u"Liste"_s;
    return auftrag;
}

void schreibe(const QString &pfad, const QByteArray &bytes)
{
    QFile datei(pfad);
    QVERIFY(datei.open(QIODevice::WriteOnly));
    QCOMPARE(datei.write(bytes), bytes.size());
}

QByteArray inhalt(const QString &pfad)
{
    QFile datei(pfad);
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
}

} // namespace

void TestPdftuer::init()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    m_ordner = std::make_unique<QTemporaryDir>();
    m_einstellungen = std::make_unique<QSettings>(pfad(u"e.ini"_s), QSettings::IniFormat);
    m_fenster = std::make_unique<QWidget>();
    m_darueber = nullptr;
    m_streifen = new Hinweisstreifen;
    (new QVBoxLayout(m_fenster.get()))->addWidget(m_streifen);
    m_fenster->show();
    m_fragen.clear();
    m_antworten.clear();
    m_meldungen.clear();
    m_geoeffnet.clear();
    m_oeffnet = true;
}

void TestPdftuer::cleanup()
{
    m_fenster.reset();
    m_einstellungen.reset();
    m_ordner.reset();
}

bool TestPdftuer::sichere(const Druckauftrag &auftrag)
{
    const Pdftuer tuer = systempdftuer(
        *m_einstellungen,
        [this](QWidget *, const Meldung &meldung) {
            m_meldungen << meldung;
            return 0;
        },
        [this](QWidget *, const Dateifrage &frage, const auto &antwort) {
            m_fragen << frage;
            if (!m_antworten.isEmpty()) {
                antwort(m_antworten.takeFirst());
            }
        },
        [this](const QString &ordner) {
            m_geoeffnet << ordner;
            return m_oeffnet;
        });
    bool gesichert = false;
    tuer(m_darueber != nullptr ? m_darueber : m_fenster.get(), auftrag,
         [&gesichert] { gesichert = true; });
    return gesichert;
}

/// What another program reads there; empty for what is no PDF.
QString TestPdftuer::angabe(const QString &pdf, const QString &welche)
{
    QProcess leser;
    leser.start(u"pdfinfo"_s, {pdf});
    leser.waitForFinished();
    const QRegularExpression zeile(welche + u":\\s*(.*)"_s);
    return zeile.match(QString::fromUtf8(leser.readAllStandardOutput())).captured(1);
}

void TestPdftuer::withoutAChoiceTheDocumentsAreProposed()
{
    schreibe(pfad(u"user-dirs.dirs"_s),
             "XDG_DOCUMENTS_DIR=\"" + m_ordner->path().toUtf8() + "\"\n");
    const QByteArray vorher = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", m_ordner->path().toUtf8());
    QVERIFY(!sichere(auftrag()));
    vorher.isNull() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", vorher);
    QCOMPARE(m_fragen.size(), 1);
    QCOMPARE(m_fragen[0].vorschlag, pfad(u"Probe 2026-11-22 Liste.pdf"_s));
    QCOMPARE(m_fragen[0].zweck, Dateifrage::Zweck::Schreiben);
    QCOMPARE(m_fragen[0].endung, u"pdf"_s);
    QVERIFY(m_meldungen.isEmpty());
}

void TestPdftuer::theChosenFolderIsProposed()
{
    QVERIFY(QDir().mkpath(pfad(u"Ausdrucke"_s)));
    merkePdfordner(*m_einstellungen, pfad(u"Ausdrucke"_s));
    m_antworten = {pfad(u"Ausdrucke/a.pdf"_s)};
    QVERIFY(sichere(auftrag(3)));
    QCOMPARE(m_fragen[0].vorschlag, pfad(u"Ausdrucke/Probe 2026-11-22 Liste.pdf"_s));
    QCOMPARE(seiten(pfad(u"Ausdrucke/a.pdf"_s)), 3);
    QCOMPARE(angabe(pfad(u"Ausdrucke/a.pdf"_s), u"Title"_s), u"Probe 2026-11-22 Liste"_s);
    QVERIFY(m_meldungen.isEmpty());
    // Nothing but the PDF is left behind.
    QCOMPARE(QDir(pfad(u"Ausdrucke"_s)).entryList(QDir::Files | QDir::Hidden), {u"a.pdf"_s});
}

void TestPdftuer::aNameThatIsTakenGetsANumber()
{
    merkePdfordner(*m_einstellungen, m_ordner->path());
    schreibe(pfad(u"Probe 2026-11-22 Liste.pdf"_s), "alt");
    QVERIFY(!sichere(auftrag()));
    QCOMPARE(m_fragen[0].vorschlag, pfad(u"Probe 2026-11-22 Liste (2).pdf"_s));
}

void TestPdftuer::thePagesComeOnThePaperOfTheSettings()
{
    merkeSeite(*m_einstellungen,
               Druckprobe::papier(QPageSize::A5, QPageLayout::Landscape, {10, 20, 30, 40}));
    m_antworten = {pfad(u"a.pdf"_s)};
    QPageLayout gesehen;
    Druckauftrag quer = auftrag();
    quer.seitenzahl = [&gesehen](const QPageLayout &seite) {
        gesehen = seite;
        return 1;
    };
    QVERIFY(sichere(quer));
    QCOMPARE(gesehen.fullRect(QPageLayout::Point), QRectF(0, 0, 595, 420));
    QCOMPARE(gesehen.paintRect(QPageLayout::Point), QRectF(10, 20, 555, 360));
    QCOMPARE(seiten(pfad(u"a.pdf"_s)), 1);
}

void TestPdftuer::aFolderThatCanNotBeUsedIsTold_data()
{
    QTest::addColumn<QString>("ordner");
    QTest::newRow("one that is gone") << u"fehlt"_s;
    QTest::newRow("a file in its place") << u"datei"_s;
    QTest::newRow("a link that leads nowhere") << u"verweis"_s;
}

void TestPdftuer::aFolderThatCanNotBeUsedIsTold()
{
    QFETCH(QString, ordner);
    schreibe(pfad(u"datei"_s), "x");
    QVERIFY(QFile::link(pfad(u"nirgends"_s), pfad(u"verweis"_s)));
    merkePdfordner(*m_einstellungen, pfad(ordner));
    m_antworten = {pfad(u"a.pdf"_s)};
    QVERIFY(sichere(auftrag()));
    QCOMPARE(m_meldungen.size(), 1);
    QCOMPARE(m_meldungen[0].text, u"In den Ordner für PDF lässt sich nichts sichern."_s);
    QVERIFY(m_meldungen[0].erklaerung.contains(u'„' + pfad(ordner) + u'“'));
    QVERIFY(!m_fragen[0].vorschlag.startsWith(pfad(ordner)));
    QCOMPARE(pdfordner(*m_einstellungen), pfad(ordner)); // it may come back
    QCOMPARE(seiten(pfad(u"a.pdf"_s)), 2);
}

void TestPdftuer::thePdfFolderOfTheSystemIsForgottenAgain()
{
    const QString systemordner = pdfordner(*m_einstellungen);
    QVERIFY(gewaehlterPdfordner(*m_einstellungen).isEmpty());
    merkePdfordner(*m_einstellungen, m_ordner->path());
    QCOMPARE(pdfordner(*m_einstellungen), m_ordner->path());
    QCOMPARE(gewaehlterPdfordner(*m_einstellungen), m_ordner->path());
    merkePdfordner(*m_einstellungen, QString());
    QCOMPARE(pdfordner(*m_einstellungen), systemordner);
    QCOMPARE(m_einstellungen->allKeys(), QStringList());
}

void TestPdftuer::whatCanNotBeWrittenIsToldAndAnotherPlaceAskedFor_data()
{
    QTest::addColumn<QString>("pdf");
    QTest::newRow("a folder that is not there") << u"fehlt/a.pdf"_s;
    QTest::newRow("a folder in the place of the file") << u"."_s;
    QTest::newRow("a pipe in the place of the file") << u"rohr"_s;
    QTest::newRow("a name that is too long") << QString(300, u'x') + u".pdf"_s;
}

void TestPdftuer::whatCanNotBeWrittenIsToldAndAnotherPlaceAskedFor()
{
    QFETCH(QString, pdf);
    const QString falscher = pfad(pdf);
    QCOMPARE(mkfifo(QFile::encodeName(pfad(u"rohr"_s)).constData(), 0600), 0);
    m_antworten = {falscher, pfad(u"b.pdf"_s)};
    QVERIFY(sichere(auftrag()));
    QCOMPARE(m_meldungen.size(), 1);
    QCOMPARE(m_meldungen[0].text, u"Das PDF ist nicht gesichert."_s);
    QVERIFY(m_meldungen[0].erklaerung.contains(falscher));
    QCOMPARE(m_fragen.size(), 2);
    QVERIFY(nimmtDateien(QFileInfo(m_fragen[1].vorschlag).path()));
    QCOMPARE(seiten(pfad(u"b.pdf"_s)), 2);
    QVERIFY(!QFile::exists(pfad(u"fehlt"_s)));
    QVERIFY(!QFileInfo(pfad(u"rohr"_s)).isFile()); // is one still
    QVERIFY(m_streifen->hinweise()[0].text.endsWith(pfad(u"b.pdf"_s)));
}

void TestPdftuer::withoutRoomForADraftItIsTold()
{
    const QByteArray vorher = qgetenv("TMPDIR");
    qputenv("TMPDIR", "/proc"); // nobody makes a folder there
    m_antworten = {pfad(u"a.pdf"_s)};
    QVERIFY(!sichere(auftrag()));
    vorher.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", vorher);
    QCOMPARE(m_meldungen.size(), 1);
    QVERIFY(!QFile::exists(pfad(u"a.pdf"_s)));
}

void TestPdftuer::aFullDiskKeepsTheOldPdf_data()
{
    QTest::addColumn<double>("anteil");
    QTest::addColumn<int>("weniger");
    QTest::newRow("from the beginning") << 0.0 << 0;
    QTest::newRow("on the way") << 0.5 << 0;
    QTest::newRow("at the last line") << 1.0 << 4;
}

/// Room for a part of the pages' bytes, or for all but so many.
void TestPdftuer::aFullDiskKeepsTheOldPdf()
{
    QFETCH(double, anteil);
    QFETCH(int, weniger);
    const QString pdf = pfad(u"a.pdf"_s);
    m_antworten = {pdf};
    QVERIFY(sichere(auftrag()));
    const auto groesse = static_cast<double>(inhalt(pdf).size());
    m_streifen->nimmZurueck(u"pdf"_s);
    schreibe(pdf, "alt");
    m_antworten = {pdf};
    {
        const VolleFestplatte voll(static_cast<rlim_t>(anteil * groesse) -
                                   static_cast<rlim_t>(weniger));
        QVERIFY(!sichere(auftrag()));
    }
    QCOMPARE(inhalt(pdf), QByteArray("alt"));
    QCOMPARE(QDir(m_ordner->path()).entryList({u"a.pdf*"_s}, QDir::Files | QDir::Hidden),
             QStringList{u"a.pdf"_s});
    QCOMPARE(m_meldungen.size(), 1);
    QCOMPARE(m_meldungen[0].text, u"Das PDF ist nicht gesichert."_s);
    QVERIFY(m_streifen->hinweise().isEmpty());
    m_antworten = {pdf};
    QVERIFY(sichere(auftrag())); // as soon as there is room
    QCOMPARE(seiten(pdf), 2);
}

void TestPdftuer::aProtectedFolderKeepsTheOldPdf()
{
    const QString pdf = pfad(u"a.pdf"_s);
    schreibe(pdf, "alt");
    const QByteArray ordner = QFile::encodeName(m_ordner->path());
    QCOMPARE(chmod(ordner.constData(), 0555), 0);
    m_antworten = {pdf};
    {
        const OhneRechte einfach;
        QVERIFY(einfach.gelungen());
        QVERIFY(!sichere(auftrag()));
    }
    QCOMPARE(chmod(ordner.constData(), 0700), 0);
    QCOMPARE(m_meldungen.size(), 1);
    QCOMPARE(inhalt(pdf), QByteArray("alt"));
    m_antworten = {pdf};
    QVERIFY(sichere(auftrag()));
    QCOMPARE(seiten(pdf), 2);
}

void TestPdftuer::cancellingWritesNothing()
{
    merkePdfordner(*m_einstellungen, m_ordner->path());
    QVERIFY(!sichere(auftrag()));
    QCOMPARE(QDir(m_ordner->path()).entryList({u"*.pdf"_s}), QStringList());
    QVERIFY(m_meldungen.isEmpty());
    QVERIFY(m_streifen->hinweise().isEmpty());
}

void TestPdftuer::stoppingOnTheWayKeepsTheOldPdf()
{
    const QString pdf = pfad(u"a.pdf"_s);
    schreibe(pdf, "alt");
    m_antworten = {pdf};
    Druckauftrag langer = auftrag(3);
    langer.male = [this](QPainter &, const QPageLayout &, int seite) {
        if (seite == 1) {
            m_fenster->findChild<QProgressDialog *>()->cancel();
        }
    };
    QVERIFY(!sichere(langer));
    QCOMPARE(inhalt(pdf), QByteArray("alt"));
    QVERIFY(m_meldungen.isEmpty()); // the user knows
    QCOMPARE(m_fragen.size(), 1);
    QVERIFY(m_streifen->hinweise().isEmpty());
}

void TestPdftuer::anOldPdfIsReplacedByAWholeOneOnly_data()
{
    QTest::addColumn<bool>("gelingt");
    QTest::newRow("a print that works") << true;
    QTest::newRow("a print without pages") << false;
}

void TestPdftuer::anOldPdfIsReplacedByAWholeOneOnly()
{
    QFETCH(bool, gelingt);
    const QString pdf = pfad(u"a.pdf"_s);
    schreibe(pdf, "alt");
    m_antworten = {pdf};
    QCOMPARE(sichere(auftrag(gelingt ? 1 : 0)), gelingt);
    QCOMPARE(inhalt(pdf) == "alt", !gelingt);
    QCOMPARE(seiten(pdf), gelingt ? 1 : 0);
}

void TestPdftuer::theNoticeSaysWhereItLiesAndOpensTheFolder()
{
    m_antworten = {pfad(u"<b>a.pdf"_s)};
    QVERIFY(sichere(auftrag()));
    QCOMPARE(m_streifen->hinweise().size(), 1);
    QCOMPARE(m_streifen->hinweise()[0].text, u"Das PDF ist gesichert: "_s + pfad(u"<b>a.pdf"_s));
    QVERIFY(m_geoeffnet.isEmpty()); // nothing comes up by itself
    QTest::mouseClick(m_streifen->findChild<QPushButton *>(u"hinweisknopf"_s), Qt::LeftButton);
    QCOMPARE(m_geoeffnet, QStringList{m_ordner->path()});
    QVERIFY(m_meldungen.isEmpty());
}

void TestPdftuer::aFolderThatDoesNotOpenIsTold()
{
    m_oeffnet = false;
    m_antworten = {pfad(u"a.pdf"_s)};
    QVERIFY(sichere(auftrag()));
    QTest::mouseClick(m_streifen->findChild<QPushButton *>(u"hinweisknopf"_s), Qt::LeftButton);
    QCOMPARE(m_meldungen.size(), 1);
    QCOMPARE(m_meldungen[0].text, u"Der Ordner lässt sich nicht öffnen."_s);
    QCOMPARE(m_meldungen[0].erklaerung, m_ordner->path());
}

void TestPdftuer::aWindowAboveTellsInTheStripBelow()
{
    m_darueber = new QWidget(m_fenster.get(), Qt::Window);
    m_antworten = {pfad(u"a.pdf"_s)};
    QVERIFY(sichere(auftrag()));
    QCOMPARE(m_streifen->hinweise().size(), 1);
    QVERIFY(m_meldungen.isEmpty());
}

void TestPdftuer::withoutAStripAMessageTells()
{
    delete m_streifen;
    m_antworten = {pfad(u"a.pdf"_s)};
    QVERIFY(sichere(auftrag()));
    QCOMPARE(m_meldungen.size(), 1);
    QCOMPARE(m_meldungen[0].text, u"Das PDF ist gesichert: "_s + pfad(u"a.pdf"_s));
}

QTEST_MAIN(TestPdftuer)
#include "TestPdftuer.moc"
