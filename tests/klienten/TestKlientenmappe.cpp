// Everything that is kept of a client, handed over as a folder.

#include "Klientenmappe.h"

#include "Aktenprobe.h"
#include "Hindernisse.h"
#include "Klientenuebergabe.h"
#include "Stoerung.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <limits>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

class TestKlientenmappe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aFolderHoldsEverything();
    void anotherDeskReadsTheSameClient();
    void anotherDeskTakesInWhatWaitsToBeWritten();
    void theTablesAreThoseOfSpreadsheets();
    void theSheetIsAWholePdf();
    void onlyTheUserMayReadIt();
    void itIsNamedAfterTheClient_data();
    void itIsNamedAfterTheClient();
    void everyNameMakesAFolder_data();
    void everyNameMakesAFolder();
    void whatIsThereStaysAsItIs_data();
    void whatIsThereStaysAsItIs();
    void aFolderThatIsNoneIsTold_data();
    void aFolderThatIsNoneIsTold();
    void aProtectedFolderIsTold();
    void aFullDiskLeavesNothing_data();
    void aFullDiskLeavesNothing();
    void aStepThatFailsLeavesNothing_data();
    void aStepThatFailsLeavesNothing();
    void aNameThatIsRefusedLeavesNothing();
    void whatWasCutOffSaysSo();
    void recordsOfDaysComeAlong();
    void inEnglishTheFilesAreEnglish();

private:
    QString pfad(const QString &name) const { return m_ordner->filePath(name); }
    QStringList inhalt(const QString &unterordner = u"."_s) const
    {
        return QDir(pfad(unterordner))
            .entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot,
                       QDir::Name);
    }
    static QByteArray bytes(const QString &pfad)
    {
        QFile datei(pfad);
        return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
    }
    Mappenausgang schreibe(const Klientenakte &akte = Aktenprobe::akte()) const
    {
        return schreibeMappe(m_ordner->path(), akte, Aktenprobe::heute);
    }
    static mode_t rechte(const QString &pfad)
    {
        struct stat angaben = {};
        stat(QFile::encodeName(pfad).constData(), &angaben);
        return angaben.st_mode & 0777U;
    }

    std::unique_ptr<Probesprache> m_sprache;
    std::unique_ptr<QTemporaryDir> m_ordner;
};

namespace {

const QStringList dateien = {u"Akte.json"_s,  u"Akte.pdf"_s,       u"Besuche.csv"_s,
                             u"Person.csv"_s, u"Planzeilen.csv"_s, u"Pläne.csv"_s};

/// A client whose file for another desk is by far the largest of the folder: many foods.
Klientenakte grosse()
{
    Klientenakte akte = Aktenprobe::akte();
    for (int i = 0; i < 400; ++i) {
        akte.plaene[0].posten << akte.plaene[0].posten[0];
    }
    return akte;
}

/// What another program tells of a PDF.
QString angabe(const QString &pdf, const QString &welche)
{
    QProcess leser;
    leser.start(u"pdfinfo"_s, {pdf});
    leser.waitForFinished();
    const QRegularExpression zeile(welche + u":\\s*(.*)"_s);
    return zeile.match(QString::fromUtf8(leser.readAllStandardOutput())).captured(1);
}

} // namespace

void TestKlientenmappe::init()
{
    m_sprache.reset();
    m_sprache = std::make_unique<Probesprache>(QLocale::German);
    m_ordner = std::make_unique<QTemporaryDir>();
}

void TestKlientenmappe::aFolderHoldsEverything()
{
    const Mappenausgang ausgang = schreibe();
    QVERIFY2(ausgang.gelungen, qPrintable(ausgang.grund));
    QVERIFY(ausgang.grund.isEmpty());
    QCOMPARE(ausgang.ordner, pfad(u"Anna Muster 2026-11-23"_s));
    QCOMPARE(inhalt(), QStringList{u"Anna Muster 2026-11-23"_s});
    QCOMPARE(inhalt(inhalt()[0]), dateien);
}

/// To the last bit, with what is unknown and with what is no number.
void TestKlientenmappe::anotherDeskReadsTheSameClient()
{
    Klientenakte akte = Aktenprobe::akte();
    akte.besuche[0].gewicht = 0.1 + 0.2;
    akte.besuche[1].sport = u""_s;
    akte.plaene[0].posten[0].eintrag->setfett(std::numeric_limits<float>::quiet_NaN());
    const Mappenausgang ausgang = schreibe(akte);
    const Uebergabe gelesen = leseAkte(bytes(ausgang.ordner + u"/Akte.json"_s));
    QCOMPARE(gelesen.zustand, Uebergabe::Zustand::Gelesen);
    QCOMPARE(gelesen.akte, akte);
}

/// The server may be away while a client is handed over.
void TestKlientenmappe::anotherDeskTakesInWhatWaitsToBeWritten()
{
    Klientenakte akte = Aktenprobe::akte();
    akte.person.fassung = 0;
    akte.besuche[1].fassung = 0;
    akte.plaene[0].fassung = 0;
    Uebergabe gelesen = leseAkte(bytes(schreibe(akte).ordner + u"/Akte.json"_s));
    QCOMPARE(gelesen.zustand, Uebergabe::Zustand::Gelesen);
    QCOMPARE(gelesen.akte.person.fassung, 1);
    gelesen.akte.person.fassung = 0;
    gelesen.akte.besuche[1].fassung = 0;
    gelesen.akte.plaene[0].fassung = 0;
    QCOMPARE(gelesen.akte, akte);
}

void TestKlientenmappe::theTablesAreThoseOfSpreadsheets()
{
    const QString ordner = schreibe().ordner + u'/';
    QVERIFY(bytes(ordner + u"Besuche.csv"_s).startsWith("\xEF\xBB\xBF"));
    QCOMPARE(QString::fromUtf8(bytes(ordner + u"Besuche.csv"_s)),
             u"Datum;Gewicht (kg);Größe (m);Taille (cm);Hüfte (cm);Tätigkeit;"
             "Gewichtsreduktion;Sport;Sport am Tag (h);Notiz\r\n"
             "2026-09-01;82,5;1,68;98;;mittlere Tätigkeit;;;;Erstes Gespräch\r\n"
             "2026-10-06;80,9;;95,5;;;ja;Radfahren;0,5;\r\n"_s);
    QCOMPARE(QString::fromUtf8(bytes(ordner + u"Pläne.csv"_s)),
             u"Titel;Datum;Notiz;Lebensmittel\r\n"
             "Erste Woche;2026-09-02;Abends warm;3\r\n"_s);
    QVERIFY(QString::fromUtf8(bytes(ordner + u"Person.csv"_s))
                .startsWith(u"Angabe;Wert\r\nName;Anna Muster\r\n"_s));
    QVERIFY(QString::fromUtf8(bytes(ordner + u"Planzeilen.csv"_s))
                .contains(u"\r\nErste Woche;2026-09-02;Äpfel, roh;150;78;0,45"_s));
}

void TestKlientenmappe::theSheetIsAWholePdf()
{
    const QString pdf = schreibe().ordner + u"/Akte.pdf"_s;
    QCOMPARE(angabe(pdf, u"Title"_s), u"Anna Muster 2026-11-23 Akte"_s);
    QCOMPARE(angabe(pdf, u"Page size"_s), u"595 x 842 pts (A4)"_s);
    QProcess leser;
    leser.start(u"pdftotext"_s, {pdf, u"-"_s});
    leser.waitForFinished();
    const QString text = QString::fromUtf8(leser.readAllStandardOutput());
    for (const QString &teil : {u"Anna Muster"_s, u"Erstes Gespräch"_s, u"Vergessenes"_s}) {
        QVERIFY2(text.contains(teil), qPrintable(text));
    }
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QCOMPARE(angabe(schreibe().ordner + u"/Akte.pdf"_s, u"Page size"_s),
             u"612 x 792 pts (letter)"_s);
}

void TestKlientenmappe::onlyTheUserMayReadIt()
{
    const mode_t vorher = umask(0);
    const QString ordner = schreibe().ordner;
    QCOMPARE(umask(vorher), mode_t(0)); // it is as it was
    QCOMPARE(rechte(ordner), mode_t(0700));
    for (const QString &datei : dateien) {
        QCOMPARE(rechte(ordner + u'/' + datei), mode_t(0600));
    }
}

void TestKlientenmappe::itIsNamedAfterTheClient_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("ordner");
    const QString tag = u" 2026-11-23"_s;
    const QString herz = u"\U0001F49B"_s;
    QTest::newRow("a name") << u"Anna Muster"_s << u"Anna Muster"_s + tag;
    QTest::newRow("none") << QString() << u"2026-11-23"_s;
    QTest::newRow("blanks") << u" \t "_s << u"2026-11-23"_s;
    QTest::newRow("the folder above") << u".."_s << u"2026-11-23"_s;
    QTest::newRow("a way out of the folder") << u"../../etc"_s << u"-..-etc"_s + tag;
    QTest::newRow("from the root") << u"/etc"_s << u"-etc"_s + tag;
    QTest::newRow("a hidden one") << u". .versteckt"_s << u"versteckt"_s + tag;
    QTest::newRow("dots within") << u"Dr. h.c. Anna"_s << u"Dr. h.c. Anna"_s + tag;
    QTest::newRow("signs that other systems refuse")
        << u"a\\b:c*d?e\"f<g>h|i"_s << u"a-b-c-d-e-f-g-h-i"_s + tag;
    QTest::newRow("several lines") << u"Anna\nMuster"_s << u"Anna Muster"_s + tag;
    QTest::newRow("a control character") << u"Anna\u0001Muster"_s << u"AnnaMuster"_s + tag;
    QTest::newRow("very long") << QString(300, u'x') << QString(60, u'x') + tag;
    QTest::newRow("in wide letters") << QString(300, u'食') << QString(60, u'食') + tag;
    QTest::newRow("of signs that are two") << herz.repeated(100) << herz.repeated(30) + tag;
    QTest::newRow("cut off within such a sign")
        << QString(59, u'x') + herz << QString(59, u'x') + tag;
    QTest::newRow("cut off at a blank") << QString(59, u'x') + u" y"_s << QString(59, u'x') + tag;
    QTest::newRow("with what marks arguments") << u"%1 %2"_s << u"%1 %2"_s + tag;
}

void TestKlientenmappe::itIsNamedAfterTheClient()
{
    QFETCH(const QString, name);
    QTEST(mappenname(name, Aktenprobe::heute), "ordner");
}

void TestKlientenmappe::everyNameMakesAFolder_data()
{
    itIsNamedAfterTheClient_data();
}

/// And the second time one beside it.
void TestKlientenmappe::everyNameMakesAFolder()
{
    QFETCH(const QString, name);
    QFETCH(const QString, ordner);
    Klientenakte akte = Aktenprobe::akte();
    akte.person.name = name;
    QCOMPARE(schreibe(akte).ordner, pfad(ordner));
    QCOMPARE(schreibe(akte).ordner, pfad(ordner + u" (2)"_s));
    QCOMPARE(inhalt(), QStringList({ordner, ordner + u" (2)"_s}));
    QCOMPARE(inhalt(ordner), dateien);
    QCOMPARE(leseAkte(bytes(pfad(ordner) + u"/Akte.json"_s)).akte, akte);
}

void TestKlientenmappe::whatIsThereStaysAsItIs_data()
{
    QTest::addColumn<QString>("was");
    QTest::newRow("a folder with a file in it") << u"voll"_s;
    QTest::newRow("an empty folder") << u"leer"_s;
    QTest::newRow("a file") << u"datei"_s;
    QTest::newRow("a link that leads nowhere") << u"verweis"_s;
}

void TestKlientenmappe::whatIsThereStaysAsItIs()
{
    QFETCH(const QString, was);
    const QString name = u"Anna Muster 2026-11-23"_s;
    if (was == u"verweis"_s) {
        QVERIFY(QFile::link(pfad(u"nirgends"_s), pfad(name)));
    } else if (was != u"datei"_s) {
        QVERIFY(QDir().mkdir(pfad(name)));
    }
    const QString datei = was == u"voll"_s ? name + u"/Akte.pdf"_s : name;
    if (was == u"voll"_s || was == u"datei"_s) {
        QFile alt(pfad(datei));
        QVERIFY(alt.open(QIODevice::WriteOnly));
        alt.write("alt");
    }
    QCOMPARE(schreibe().ordner, pfad(name + u" (2)"_s));
    QCOMPARE(schreibe().ordner, pfad(name + u" (3)"_s));
    QCOMPARE(inhalt(), QStringList({name, name + u" (2)"_s, name + u" (3)"_s}));
    QCOMPARE(inhalt(name + u" (3)"_s), dateien);
    QCOMPARE(bytes(pfad(datei)), was == u"voll"_s || was == u"datei"_s ? "alt" : QByteArray());
    QCOMPARE(inhalt(name), was == u"voll"_s ? QStringList{u"Akte.pdf"_s} : QStringList());
}

void TestKlientenmappe::aFolderThatIsNoneIsTold_data()
{
    QTest::addColumn<QString>("was");
    QTest::newRow("one that is not there") << u"fehlt"_s;
    QTest::newRow("a file in its place") << u"datei"_s;
    QTest::newRow("a link that leads nowhere") << u"verweis"_s;
    QTest::newRow("with what marks arguments") << u"%1 %2"_s;
}

void TestKlientenmappe::aFolderThatIsNoneIsTold()
{
    QFETCH(const QString, was);
    QFile datei(pfad(u"datei"_s));
    QVERIFY(datei.open(QIODevice::WriteOnly));
    QVERIFY(QFile::link(pfad(u"nirgends"_s), pfad(u"verweis"_s)));
    const QStringList vorher = inhalt();
    const Mappenausgang ausgang = schreibeMappe(pfad(was), Aktenprobe::akte(), Aktenprobe::heute);
    QVERIFY(!ausgang.gelungen);
    QVERIFY(ausgang.ordner.isEmpty());
    QVERIFY(ausgang.grund.startsWith(u"Im Ordner „"_s + pfad(was) + u"“ lässt sich nichts"_s));
    QCOMPARE(inhalt(), vorher);
}

void TestKlientenmappe::aProtectedFolderIsTold()
{
    QCOMPARE(chmod(QFile::encodeName(m_ordner->path()).constData(), 0555), 0);
    Mappenausgang ausgang;
    {
        const OhneRechte einfach;
        QVERIFY(einfach.gelungen());
        ausgang = schreibe();
    }
    QCOMPARE(chmod(QFile::encodeName(m_ordner->path()).constData(), 0700), 0);
    QVERIFY(!ausgang.gelungen);
    QVERIFY(ausgang.grund.contains(m_ordner->path()));
    QVERIFY(inhalt().isEmpty());
    QVERIFY(schreibe().gelungen); // as soon as it may
}

void TestKlientenmappe::aFullDiskLeavesNothing_data()
{
    QTest::addColumn<QString>("datei");
    QTest::addColumn<double>("anteil");
    QTest::addColumn<int>("weniger");
    QTest::newRow("from the beginning") << u"Akte.pdf"_s << 0.0 << 0;
    QTest::newRow("within the sheet") << u"Akte.pdf"_s << 0.5 << 0;
    QTest::newRow("at the sheet's last line") << u"Akte.pdf"_s << 1.0 << 4;
    QTest::newRow("at the last byte of all") << u"Akte.json"_s << 1.0 << 1;
}

/// Room for a part of the bytes of the file that is the first one not to fit, or for all but so
/// many.
void TestKlientenmappe::aFullDiskLeavesNothing()
{
    QFETCH(const QString, datei);
    QFETCH(const double, anteil);
    QFETCH(const int, weniger);
    const Klientenakte akte = datei == u"Akte.json"_s ? grosse() : Aktenprobe::akte();
    const QString ordner = schreibe(akte).ordner;
    const qsizetype groesse = bytes(ordner + u'/' + datei).size();
    for (const QString &andere : dateien) {
        QVERIFY(andere == datei || bytes(ordner + u'/' + andere).size() < groesse - 1);
    }
    QVERIFY(QDir(ordner).removeRecursively());
    const auto platz = static_cast<rlim_t>(anteil * static_cast<double>(groesse));
    Mappenausgang ausgang;
    {
        const VolleFestplatte voll(platz - static_cast<rlim_t>(weniger));
        ausgang = schreibe(akte);
    }
    QVERIFY(!ausgang.gelungen);
    QVERIFY(ausgang.ordner.isEmpty());
    QVERIFY2(ausgang.grund.startsWith(u"Die Datei „"_s + ordner + u'/' + datei + u"“"_s),
             qPrintable(ausgang.grund));
    QVERIFY(inhalt().isEmpty());
    QCOMPARE(schreibe(akte).ordner, ordner); // as soon as there is room
}

void TestKlientenmappe::aStepThatFailsLeavesNothing_data()
{
    using Schritt = Stoerung::Schritt;
    QTest::addColumn<Schritt>("schritt");
    QTest::addColumn<int>("heile");
    QTest::addColumn<QString>("datei");
    // Four tables and the file for another desk are written one after the other.
    QTest::newRow("writing the sheet") << Schritt::Schreiben << 0 << u"Akte.pdf"_s;
    QTest::newRow("making the first table") << Schritt::Anlegen << 0 << u"Person.csv"_s;
    QTest::newRow("making the last table") << Schritt::Anlegen << 3 << u"Planzeilen.csv"_s;
    QTest::newRow("making the file for another desk") << Schritt::Anlegen << 4 << u"Akte.json"_s;
    QTest::newRow("its way to the disk") << Schritt::DateiSichern << 4 << u"Akte.json"_s;
    QTest::newRow("naming the second table") << Schritt::Umbenennen << 1 << u"Besuche.csv"_s;
    QTest::newRow("that name's way to the disk") << Schritt::OrdnerSichern << 1 << u"Besuche.csv"_s;
}

void TestKlientenmappe::aStepThatFailsLeavesNothing()
{
    QFETCH(const Stoerung::Schritt, schritt);
    QFETCH(const int, heile);
    QFETCH(const QString, datei);
    Mappenausgang ausgang;
    {
        const Stoerung stoerung(schritt, heile);
        ausgang = schreibe();
        QVERIFY(stoerung.ausfaelle() > 0);
    }
    QVERIFY(!ausgang.gelungen);
    QVERIFY2(ausgang.grund.contains(u'/' + datei + u"“"_s), qPrintable(ausgang.grund));
    QVERIFY(inhalt().isEmpty());
}

/// So deep in folders that the draft still has room in the name of a path, and its place has not.
void TestKlientenmappe::aNameThatIsRefusedLeavesNothing()
{
    constexpr qsizetype laengsterPfad = 4095;
    constexpr qsizetype platzDesEntwurfs = 80;
    QString tief = m_ordner->path();
    while (tief.size() + 201 < laengsterPfad - platzDesEntwurfs) {
        tief += u'/' + QString(200, u'o');
    }
    tief += u'/' + QString(laengsterPfad - platzDesEntwurfs - tief.size() - 1, u'o');
    QVERIFY(QDir().mkpath(tief));
    Klientenakte akte = Aktenprobe::akte();
    akte.person.name = QString(60, u'食'); // of three bytes each
    QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(u"File name too long"_s));
    const Mappenausgang ausgang = schreibeMappe(tief, akte, Aktenprobe::heute);
    QVERIFY(!ausgang.gelungen);
    QVERIFY2(ausgang.grund.startsWith(u"Der Ordner „"_s + tief), qPrintable(ausgang.grund));
    QVERIFY(QDir(tief).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    akte.person.name = u"A"_s;
    QVERIFY(schreibeMappe(tief, akte, Aktenprobe::heute).gelungen);
}

void TestKlientenmappe::recordsOfDaysComeAlong()
{
    Klientenakte akte = Aktenprobe::akte();
    akte.aufzeichnungen = {Aktenprobe::tage()};
    akte.aufzeichnungen[0].fassung = 0; // waits to be written here
    const QString ordner = schreibe(akte).ordner;
    QVERIFY(bytes(ordner + u"/Aufzeichnungen.csv"_s).contains("Zwei Tage"));
    QVERIFY(bytes(ordner + u"/Tageszeilen.csv"_s).contains("2 Scheiben"));
    const Uebergabe gelesen = leseAkte(bytes(ordner + u"/Akte.json"_s));
    QCOMPARE(gelesen.zustand, Uebergabe::Zustand::Gelesen);
    QVERIFY(gelesen.akte.aufzeichnungen.constFirst() == Aktenprobe::tage());
}

/// As a power cut leaves it: whoever finds it sees what it is, and it is in nobody's way.
void TestKlientenmappe::whatWasCutOffSaysSo()
{
    const QString ziel = schreibe().ordner;
    QVERIFY(QDir(ziel).removeRecursively());
    const QString halb = pfad(u"Akte (unvollständig)"_s);
    QVERIFY(QDir().mkdir(halb));
    QFile rest(halb + u"/Akte.pdf"_s);
    QVERIFY(rest.open(QIODevice::WriteOnly) && rest.write("%PDF") == 4);
    rest.close();
    QCOMPARE(schreibe().ordner, ziel);
    QCOMPARE(inhalt(), (QStringList{u"Akte (unvollständig)"_s, QFileInfo(ziel).fileName()}));
    QCOMPARE(bytes(halb + u"/Akte.pdf"_s), QByteArray("%PDF"));
}

void TestKlientenmappe::inEnglishTheFilesAreEnglish()
{
    m_sprache = std::make_unique<Probesprache>(QLocale::English);
    const QString ordner = schreibe().ordner;
    QCOMPARE(inhalt(u"Anna Muster 2026-11-23"_s),
             QStringList({u"Person.csv"_s, u"Plan rows.csv"_s, u"Plans.csv"_s, u"Record.json"_s,
                          u"Record.pdf"_s, u"Visits.csv"_s}));
    QVERIFY(bytes(ordner + u"/Plans.csv"_s).contains("Erste Woche,2026-09-02,Abends warm,3"));
    QCOMPARE(leseAkte(bytes(ordner + u"/Record.json"_s)).akte, Aktenprobe::akte());
    QVERIFY(schreibeMappe(pfad(u"fehlt"_s), Aktenprobe::akte(), Aktenprobe::heute)
                .grund.startsWith(u"Nothing can be made in the folder “"_s));
}

QTEST_MAIN(TestKlientenmappe)
#include "TestKlientenmappe.moc"
