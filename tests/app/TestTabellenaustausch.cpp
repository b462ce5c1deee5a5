#include "Archivdatei.h"
#include "Bestandsvergleich.h"
#include "Einlesefenster.h"
#include "Einwandliste.h"
#include "Hindernisse.h"
#include "Probefenster.h"
#include "Vorschautabelle.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;
using enum Naehrwert;

/// Lists that go out and foods that come in, through the windows.
class TestTabellenaustausch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void foodsComeInAtOnceAndGoAtOnce();
    void nothingChangesBeforeItIsConfirmed();
    void aMistakeStopsEverything();
    void aLineIsLeftOutAndComesBack();
    void allWrongLinesAreLeftOutAtOnce();
    void aColumnIsChosenAnew();
    void theDecimalMarkIsChosenAnew();
    void theSeparatorIsChosenAnew();
    void portionsAreWeighed();
    void headingsMayBeMissing();
    void takenNamesAreAskedAbout_data();
    void takenNamesAreAskedAbout();
    void theFoodOnDisplayFollows();
    void whatCantBeReadIsTold_data();
    void whatCantBeReadIsTold();
    void aQuoteThatStaysOpenStopsEverything();
    void aFileThatIsNotWrittenIsTold();
    void aListGoesOutAndComesBack();
    void eachListGoesOut_data();
    void eachListGoesOut();
    void theFormIsChosenAndKept();
    void aTableThatIsNotWrittenIsTold_data();
    void aTableThatIsNotWrittenIsTold();
    void withoutADoorNothingHappens();
    void aListIsCopied_data();
    void aListIsCopied();
    void thePlanIsCopied();
    void anEmptyListIsNotCopied();

private:
    AppController &controller() const { return m_fenster->controller(); }
    QString datei(const QByteArray &bytes) const;
    void oeffne();
    Einlesefenster *lies(const QByteArray &bytes);
    void gibAus(int liste, const QString &path);
    QString hinweis() const;
    Lebensmittelverzeichnis aufDerPlatte() const
    {
        return Archivdatei::lesen(m_heim->eigeneDatei()).archiv.verzeichnis;
    }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

QAction *menueeintrag(const QMainWindow &fenster, const QString &anfang)
{
    for (const QAction *menue : fenster.menuBar()->actions()) {
        for (QAction *eintrag : menue->menu()->actions()) {
            if (QString(eintrag->text()).remove(u'&').startsWith(anfang)) {
                return eintrag;
            }
        }
    }
    return nullptr;
}

template <typename Art>
Art *kind(const QObject &fenster, const char *name)
{
    return fenster.findChild<Art *>(QLatin1String(name));
}

QPushButton *knopf(const QObject &fenster)
{
    return kind<QPushButton>(fenster, "uebernehmen");
}

QStringList eintraege(const QObject &fenster)
{
    const auto *liste = fenster.findChild<Einwandliste *>();
    QStringList alle;
    for (int i = 0; i < liste->count(); ++i) {
        alle << liste->item(i)->text();
    }
    return alle;
}

void klicke(QAbstractButton *taste)
{
    QTest::mouseClick(taste, Qt::LeftButton);
}

/// Ticks the box of an entry or unticks it.
void kreuzeAn(const QObject &fenster, int zeile, bool weg)
{
    auto *liste = fenster.findChild<Einwandliste *>();
    liste->setCurrentRow(zeile);
    QCOMPARE(liste->item(zeile)->checkState() == Qt::Checked, !weg);
    QTest::keyClick(liste, Qt::Key_Space);
    QCoreApplication::processEvents();
}

const QByteArray zweiSpeisen =
    "Name;Energie (kcal);Kalium (mg);Gicht\nQuark;70;1,5;+\nSenf;90;2;-\n";

} // namespace

void TestTabellenaustausch::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->waehleDatei = [](QWidget *, const Dateifrage &, const auto &) {
    };
    m_heim->schreibeTabelle(verzeichnis({lebensmittel(u"Apfel"_s, {{kal, 52}, {ka, 0.1F}}),
                                         lebensmittel(u"Birne"_s, {{kal, 58}})}));
    m_heim->schreibeEigene(verzeichnis(
        {lebensmittel(u"Brot"_s, {{kal, 240}}), lebensmittel(u"=Mus"_s, {{kal, 1.0F / 3.0F}})}));
}

void TestTabellenaustausch::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

QString TestTabellenaustausch::datei(const QByteArray &bytes) const
{
    const QString path = m_heim->pfad(u"speisen.csv"_s);
    QFile datei(path);
    [&] {
        QVERIFY(datei.open(QIODevice::WriteOnly));
    }();
    datei.write(bytes);
    return path;
}

void TestTabellenaustausch::oeffne()
{
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

/// Chooses a file with these bytes; null when no window came up for it.
Einlesefenster *TestTabellenaustausch::lies(const QByteArray &bytes)
{
    const QString path = datei(bytes);
    m_heim->waehleDatei = [path](QWidget *, const Dateifrage &frage, const auto &antwort) {
        QVERIFY(!frage.zumSchreiben);
        antwort(path);
    };
    if (m_fenster == nullptr) {
        oeffne();
    }
    menueeintrag(*controller().Hauptfenster, u"Lebensmittel einlesen"_s)->trigger();
    return controller().Hauptfenster->findChild<Einlesefenster *>();
}

/// Saves the list of this place of the chooser.
void TestTabellenaustausch::gibAus(int liste, const QString &path)
{
    m_heim->waehleDatei = [path](QWidget *, const Dateifrage &frage, const auto &antwort) {
        QVERIFY(frage.zumSchreiben);
        antwort(path);
    };
    if (m_fenster == nullptr) {
        oeffne();
    }
    menueeintrag(*controller().Hauptfenster, u"Als Tabelle sichern"_s)->trigger();
    const auto *fenster = controller().Hauptfenster->findChild<Ausgabefenster *>();
    QVERIFY(fenster != nullptr);
    kind<QComboBox>(*fenster, "liste")->setCurrentIndex(liste);
    klicke(kind<QPushButton>(*fenster, "sichern"));
}

QString TestTabellenaustausch::hinweis() const
{
    const QList<Hinweis> &alle = controller().hinweise->hinweise();
    return alle.isEmpty() ? QString() : alle.first().text;
}

void TestTabellenaustausch::foodsComeInAtOnceAndGoAtOnce()
{
    Einlesefenster *fenster = lies(zweiSpeisen);
    QVERIFY(fenster != nullptr);
    QCOMPARE(knopf(*fenster)->text(), u"2 Lebensmittel &übernehmen"_s);
    klicke(knopf(*fenster));
    QCOMPARE(controller().KundenArray, QStringList({u"=Mus"_s, u"Brot"_s, u"Quark"_s, u"Senf"_s}));
    QCOMPARE(aufDerPlatte().size(), 4);
    const Datenmodul quark = aufDerPlatte().value(u"Quark"_s);
    QCOMPARE(quark.kal(), 70.0F);
    QCOMPARE(quark.ka(), 1.5F);
    QCOMPARE(quark.gicht(), u"+"_s);
    QCOMPARE(hinweis(), u"2 Lebensmittel sind übernommen."_s);

    controller().hinweise->hinweise().first().aktion();
    QCOMPARE(controller().KundenArray, QStringList({u"=Mus"_s, u"Brot"_s}));
    QCOMPARE(aufDerPlatte().keys(), QStringList({u"=Mus"_s, u"Brot"_s}));
    QCOMPARE(hinweis(), u"Zurückgenommen: eingelesene Lebensmittel."_s);
    menueeintrag(*controller().Hauptfenster, u"Wiederholen"_s)->trigger();
    QCOMPARE(aufDerPlatte().size(), 4);
}

void TestTabellenaustausch::nothingChangesBeforeItIsConfirmed()
{
    Einlesefenster *fenster = lies(zweiSpeisen);
    QCOMPARE(controller().KundenArray.size(), 2);
    QTest::keyClick(fenster, Qt::Key_Escape);
    QCOMPARE(controller().KundenArray.size(), 2);
    QCOMPARE(aufDerPlatte().size(), 2);
    QVERIFY(hinweis().isEmpty());
}

void TestTabellenaustausch::aMistakeStopsEverything()
{
    const Einlesefenster *fenster = lies("Name;kcal\nQuark;x\nSenf;1,5\n");
    QVERIFY(!knopf(*fenster)->isEnabled());
    QVERIFY(knopf(*fenster)->toolTip().startsWith(u"Fehler: 1."_s));
    QVERIFY(eintraege(*fenster).contains(u"Zeile 2: Energie (kcal): „x“ ist keine Zahl."_s));
    const auto *vorschau = fenster->findChild<Vorschautabelle *>();
    QCOMPARE(vorschau->item(0, 1)->text(), u"x"_s);
    QVERIFY(!vorschau->item(0, 1)->icon().isNull());
    QCOMPARE(vorschau->item(1, 1)->text(), u"1,5\u00A0kcal"_s);
    QCOMPARE(vorschau->verticalHeaderItem(0)->text(), u"2"_s);
}

void TestTabellenaustausch::aLineIsLeftOutAndComesBack()
{
    const Einlesefenster *fenster = lies("Name;kcal\nQuark;x\nSenf;1,5\n");
    kreuzeAn(*fenster, 0, true);
    QCOMPARE(eintraege(*fenster), QStringList{u"Zeile 2: bleibt weg"_s});
    QCOMPARE(knopf(*fenster)->text(), u"1 Lebensmittel &übernehmen"_s);
    QVERIFY(knopf(*fenster)->isEnabled());
    kreuzeAn(*fenster, 0, false);
    QVERIFY(!knopf(*fenster)->isEnabled());
    kreuzeAn(*fenster, 0, true);
    klicke(knopf(*fenster));
    QCOMPARE(controller().KundenArray.last(), u"Senf"_s);
    QCOMPARE(controller().KundenArray.size(), 3);
    QCOMPARE(hinweis(), u"1 Lebensmittel ist übernommen."_s);
}

void TestTabellenaustausch::allWrongLinesAreLeftOutAtOnce()
{
    const Einlesefenster *fenster = lies("Name;kcal\nQuark;x\nSenf;1,5\nSenf;2\n;3\n");
    klicke(kind<QPushButton>(*fenster, "weglassen"));
    QCOMPARE(eintraege(*fenster).size(), 3);
    QVERIFY(!kind<QPushButton>(*fenster, "weglassen")->isEnabled());
    QCOMPARE(knopf(*fenster)->text(), u"1 Lebensmittel &übernehmen"_s);
}

void TestTabellenaustausch::aColumnIsChosenAnew()
{
    const Einlesefenster *fenster = lies("Name;Eisen;Farbe\nQuark;2;7\n");
    const auto *vorschau = fenster->findChild<Vorschautabelle *>();
    QCOMPARE(vorschau->horizontalHeaderItem(2)->text(), u"Farbe"_s);
    auto *wahl = vorschau->wahlen().at(2);
    QCOMPARE(wahl->currentText(), u"(nicht übernehmen)"_s);
    wahl->setCurrentText(u"Salz (g)"_s);
    vorschau->wahlen().at(1)->setCurrentText(u"Eisen (µg)"_s);
    QCOMPARE(vorschau->item(0, 1)->text(), u"0,002\u00A0mg"_s);
    QCOMPARE(vorschau->item(0, 2)->text(), u"2800\u00A0mg"_s);
    klicke(knopf(*fenster));
    QCOMPARE(controller().KundenDictionary.value(u"Quark"_s).na(), 2800.0F);
    QCOMPARE(controller().KundenDictionary.value(u"Quark"_s).fe(), 0.002F);
}

void TestTabellenaustausch::theDecimalMarkIsChosenAnew()
{
    const Einlesefenster *fenster = lies("Name;Kalium\nQuark;1.234\n");
    QVERIFY(eintraege(*fenster).contains(u"Spalte „Kalium“: „1.234“ ist als 1234 gelesen."_s));
    kind<QComboBox>(*fenster, "dezimal")->setCurrentText(u"Punkt ."_s);
    QVERIFY(eintraege(*fenster).contains(u"Spalte „Kalium“: „1.234“ ist als 1,234 gelesen."_s));
    klicke(knopf(*fenster));
    QCOMPARE(controller().KundenDictionary.value(u"Quark"_s).ka(), 1.234F);
}

void TestTabellenaustausch::theSeparatorIsChosenAnew()
{
    const Einlesefenster *fenster = lies("Name|Fett\nQuark;mager|2\n");
    auto *trennung = kind<QComboBox>(*fenster, "trennung");
    QCOMPARE(trennung->currentText(), u"Senkrechter Strich |"_s);
    const auto *vorschau = fenster->findChild<Vorschautabelle *>();
    QCOMPARE(vorschau->columnCount(), 2);
    trennung->setCurrentText(u"Strichpunkt ;"_s);
    QCOMPARE(vorschau->columnCount(), 1);
    QVERIFY(!knopf(*fenster)->isEnabled());
    trennung->setCurrentText(u"Senkrechter Strich |"_s);
    QVERIFY(knopf(*fenster)->isEnabled());
}

void TestTabellenaustausch::portionsAreWeighed()
{
    const Einlesefenster *fenster = lies("Name;Fett (g) je Portion\nQuark;3\n");
    QCOMPARE(kind<QComboBox>(*fenster, "bezug")->currentText(), u"eine Portion"_s);
    QVERIFY(!knopf(*fenster)->isEnabled());
    kind<QDoubleSpinBox>(*fenster, "portion")->setValue(25);
    QCOMPARE(fenster->findChild<Vorschautabelle *>()->item(0, 1)->text(), u"12\u00A0g"_s);
    klicke(knopf(*fenster));
    QCOMPARE(controller().KundenDictionary.value(u"Quark"_s).fett(), 12.0F);
}

void TestTabellenaustausch::headingsMayBeMissing()
{
    const Einlesefenster *fenster = lies("Quark;3\nSenf;4\n");
    auto *kopf = kind<QCheckBox>(*fenster, "ueberschriften");
    QVERIFY(!kopf->isChecked());
    const auto *vorschau = fenster->findChild<Vorschautabelle *>();
    QCOMPARE(vorschau->horizontalHeaderItem(0)->text(), u"Spalte 1"_s);
    vorschau->wahlen().at(0)->setCurrentText(u"Lebensmittel"_s);
    vorschau->wahlen().at(1)->setCurrentText(u"Fett (g)"_s);
    QCOMPARE(knopf(*fenster)->text(), u"2 Lebensmittel &übernehmen"_s);
    klicke(kopf);
    QCOMPARE(vorschau->horizontalHeaderItem(0)->text(), u"Quark"_s);
}

void TestTabellenaustausch::takenNamesAreAskedAbout_data()
{
    QTest::addColumn<int>("wahl");
    QTest::addColumn<QStringList>("namen");
    QTest::addColumn<float>("brot");
    QTest::addColumn<QString>("knopftext");
    QTest::newRow("replace") << 0 << QStringList{u"=Mus"_s, u"Brot"_s, u"Senf"_s} << 7.0F
                             << u"2 Lebensmittel &übernehmen"_s;
    QTest::newRow("leave out") << 1 << QStringList{u"=Mus"_s, u"Brot"_s, u"Senf"_s} << 240.0F
                               << u"1 Lebensmittel &übernehmen"_s;
    QTest::newRow("new name") << 2 << QStringList{u"=Mus"_s, u"Brot"_s, u"Brot (2)"_s, u"Senf"_s}
                              << 240.0F << u"2 Lebensmittel &übernehmen"_s;
}

void TestTabellenaustausch::takenNamesAreAskedAbout()
{
    QFETCH(int, wahl);
    const Einlesefenster *fenster = lies("Name;kcal\nBrot;7\nSenf;8\n");
    auto *namenswahl = kind<QComboBox>(*fenster, "namenswahl");
    QVERIFY(namenswahl->isVisible());
    QCOMPARE(namenswahl->currentIndex(), 1);
    QCOMPARE(kind<QLabel>(*fenster, "namensworte")->toolTip(), u"Brot"_s);
    namenswahl->setCurrentIndex(wahl);
    QTEST(knopf(*fenster)->text(), "knopftext");
    klicke(knopf(*fenster));
    QTEST(controller().KundenArray, "namen");
    QTEST(controller().KundenDictionary.value(u"Brot"_s).kal(), "brot");
}

void TestTabellenaustausch::theFoodOnDisplayFollows()
{
    oeffne();
    m_fenster->klicke(1, inEigen);
    QCOMPARE(controller().feldA->stringValue(), u"Brot"_s);
    const Einlesefenster *fenster = lies("Name;kcal\nBrot;7\n");
    kind<QComboBox>(*fenster, "namenswahl")->setCurrentIndex(0);
    klicke(knopf(*fenster));
    QCOMPARE(Probefenster::text(*controller().feldB), u"7 kcal"_s);
    controller().hinweise->hinweise().first().aktion();
    QCOMPARE(Probefenster::text(*controller().feldB), u"240 kcal"_s);
}

void TestTabellenaustausch::whatCantBeReadIsTold_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("grund");
    QTest::newRow("empty") << QByteArray() << u"Sie ist leer."_s;
    QTest::newRow("too large") << QByteArray(Csv::groessteDatei + 1, 'x')
                               << u"Sie ist größer als 50 MB."_s;
    QTest::newRow("no text")
        << QByteArray("PK\x03\x04")
        << u"Sie ist kein Text. Tabellenprogramme sichern eine Tabelle als CSV."_s;
}

void TestTabellenaustausch::whatCantBeReadIsTold()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, grund);
    QVERIFY(lies(bytes) == nullptr);
    QCOMPARE(hinweis(), u"„speisen.csv“ lässt sich nicht einlesen. "_s + grund);
}

void TestTabellenaustausch::aQuoteThatStaysOpenStopsEverything()
{
    const Einlesefenster *fenster = lies("Name;Fett\nQuark;1\n\"Senf;2\n");
    QVERIFY(eintraege(*fenster).contains(
        u"In Zeile 3 beginnt ein Anführungszeichen, das nicht endet."_s));
    QVERIFY(!knopf(*fenster)->isEnabled());
    klicke(kind<QPushButton>(*fenster, "weglassen"));
    QVERIFY(!knopf(*fenster)->isEnabled());
}

void TestTabellenaustausch::aFileThatIsNotWrittenIsTold()
{
    const Einlesefenster *fenster = lies(zweiSpeisen);
    {
        const VolleFestplatte voll(20);
        klicke(knopf(*fenster));
    }
    QCOMPARE(aufDerPlatte().size(), 2);
    QCOMPARE(controller().KundenArray.size(), 4);
    QCoreApplication::processEvents(); // the window hears of it afterwards
    QCOMPARE(controller().hinweise->hinweise().size(), 2);
    QVERIFY(controller().hinweise->hinweise()[0].warnung);
}

void TestTabellenaustausch::aListGoesOutAndComesBack()
{
    const QString path = m_heim->pfad(u"eigene.csv"_s);
    gibAus(0, path);
    QCOMPARE(hinweis(), u"Die Tabelle ist gesichert: "_s + path);
    QFile datei(path);
    QVERIFY(datei.open(QIODevice::ReadOnly));
    const QByteArray bytes = datei.readAll();
    QVERIFY(bytes.startsWith("\xEF\xBB\xBFLebensmittel;Energie (kcal);"));
    QVERIFY(bytes.contains("\r\n'=Mus;0,33333334;"));

    const Lebensmittelverzeichnis vorher = controller().KundenDictionary;
    controller().uebernimmEigene({}, {});
    const Einlesefenster *fenster = lies(bytes);
    klicke(knopf(*fenster));
    QVERIFY(vergleiche(vorher, controller().KundenDictionary).leer());
}

void TestTabellenaustausch::eachListGoesOut_data()
{
    QTest::addColumn<int>("liste");
    QTest::addColumn<QStringList>("anfaenge");
    QTest::newRow("own") << 0 << QStringList{u"'=Mus;"_s, u"Brot;240;"_s};
    QTest::newRow("built-in") << 1 << QStringList{u"Apfel;52;"_s, u"Birne;58;"_s};
    QTest::newRow("results") << 2 << QStringList{u"Brot;240;"_s, u"Birne;58;"_s};
    QTest::newRow("plan") << 3 << QStringList{u"Brot;50;120;"_s};
}

void TestTabellenaustausch::eachListGoesOut()
{
    QFETCH(int, liste);
    oeffne();
    m_fenster->suche(u"r"_s);
    controller().Planmoduloeffnen();
    controller().planmodul->gibHinein(u"Brot"_s, 50);
    const QString path = m_heim->pfad(u"liste.csv"_s);
    gibAus(liste, path);
    QFile datei(path);
    QVERIFY(datei.open(QIODevice::ReadOnly));
    const QStringList zeilen = QString::fromUtf8(datei.readAll()).split(u"\r\n"_s);
    QFETCH(QStringList, anfaenge);
    QCOMPARE(zeilen.size(), anfaenge.size() + 2);
    for (int i = 0; i < anfaenge.size(); ++i) {
        QVERIFY2(zeilen[i + 1].startsWith(anfaenge[i]), qPrintable(zeilen[i + 1]));
    }
}

void TestTabellenaustausch::theFormIsChosenAndKept()
{
    QString vorschlag;
    m_heim->waehleDatei = [&](QWidget *, const Dateifrage &frage, const auto &antwort) {
        vorschlag = frage.vorschlag;
        antwort(m_heim->pfad(u"form.csv"_s));
    };
    oeffne();
    for (const bool erstes : {true, false}) {
        menueeintrag(*controller().Hauptfenster, u"Als Tabelle sichern"_s)->trigger();
        QPointer<Ausgabefenster> fenster = controller().Hauptfenster->findChild<Ausgabefenster *>();
        auto *trennung = kind<QComboBox>(*fenster, "trennung");
        if (erstes) {
            QVERIFY(!trennung->isEnabled());
            QCOMPARE(trennung->currentText(), u"Strichpunkt ;"_s);
            kind<QComboBox>(*fenster, "form")->setCurrentIndex(1);
            trennung->setCurrentIndex(1);
            kind<QComboBox>(*fenster, "dezimal")->setCurrentIndex(1);
            kind<QCheckBox>(*fenster, "marke")->click();
        }
        QCOMPARE(trennung->currentText(), u"Komma ,"_s);
        QVERIFY(trennung->isEnabled());
        klicke(kind<QPushButton>(*fenster, "sichern"));
        QFile datei(m_heim->pfad(u"form.csv"_s));
        QVERIFY(datei.open(QIODevice::ReadOnly));
        QVERIFY(datei.readAll().startsWith("Lebensmittel,Energie (kcal),"));
        QCOMPARE(vorschlag.endsWith(u"/Eigene Lebensmittel.csv"_s), true);
        if (!erstes) {
            QCOMPARE(vorschlag, m_heim->pfad(u"Eigene Lebensmittel.csv"_s));
        }
        QTRY_VERIFY(fenster.isNull());
    }
}

void TestTabellenaustausch::aTableThatIsNotWrittenIsTold_data()
{
    QTest::addColumn<bool>("voll");
    QTest::newRow("no folder") << false;
    QTest::newRow("no room") << true;
}

void TestTabellenaustausch::aTableThatIsNotWrittenIsTold()
{
    QFETCH(bool, voll);
    std::optional<VolleFestplatte> festplatte;
    if (voll) {
        festplatte.emplace(20);
    }
    const QString path = m_heim->pfad(voll ? u"liste.csv"_s : u"fehlt/liste.csv"_s);
    gibAus(0, path);
    festplatte.reset();
    QVERIFY(!QFile::exists(path));
    QVERIFY(hinweis().startsWith(u"Die Tabelle ist nicht gesichert: "_s));
    QVERIFY(controller().hinweise->hinweise().first().warnung);
}

void TestTabellenaustausch::withoutADoorNothingHappens()
{
    m_heim->waehleDatei = {};
    oeffne();
    menueeintrag(*controller().Hauptfenster, u"Lebensmittel einlesen"_s)->trigger();
    menueeintrag(*controller().Hauptfenster, u"Als Tabelle sichern"_s)->trigger();
    QVERIFY(controller().Hauptfenster->findChild<Ausgabefenster *>() == nullptr);
}

void TestTabellenaustausch::aListIsCopied_data()
{
    QTest::addColumn<int>("spalte");
    QTest::addColumn<QStringList>("anfaenge");
    QTest::newRow("built-in") << inName << QStringList{u"Apfel\t52\t"_s, u"Birne\t58\t"_s};
    QTest::newRow("own") << inEigen << QStringList{u"'=Mus\t0,33333334\t"_s, u"Brot\t240\t"_s};
    QTest::newRow("results") << inSuch << QStringList{u"Brot\t240\t"_s, u"Birne\t58\t"_s};
}

void TestTabellenaustausch::aListIsCopied()
{
    QFETCH(int, spalte);
    QFETCH(QStringList, anfaenge);
    oeffne();
    m_fenster->suche(u"r"_s);
    controller().Tabelle->setzeSchreibmarke(0, controller().Tabelle->modell()->kennung(spalte));
    menueeintrag(*controller().Hauptfenster, u"Als Tabelle kopieren"_s)->trigger();
    const QMimeData *daten = QGuiApplication::clipboard()->mimeData();
    const QStringList zeilen = daten->text().split(u'\n');
    QCOMPARE(zeilen.size(), 4);
    QVERIFY(zeilen[0].startsWith(u"Lebensmittel\tEnergie (kcal)\t"_s));
    for (int i = 0; i < anfaenge.size(); ++i) {
        QVERIFY2(zeilen[i + 1].startsWith(anfaenge[i]), qPrintable(zeilen[i + 1]));
    }
    QVERIFY(zeilen[1].endsWith(u"\t+\t0\t-\t+"_s));
    QVERIFY(daten->html().contains(u"<th>Lebensmittel</th>"_s));
    QCOMPARE(hinweis(), u"Als Tabelle kopiert: 2 Zeilen."_s);
}

void TestTabellenaustausch::thePlanIsCopied()
{
    oeffne();
    controller().Planmoduloeffnen();
    Planmodul &plan = *controller().planmodul;
    plan.gibHinein(u"Brot"_s, 50);
    QVERIFY(QTest::qWaitForWindowActive(plan.window()));
    plan.PlanTabelle->setFocus();
    QTest::keyClick(plan.PlanTabelle, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    QStringList zeilen = QGuiApplication::clipboard()->text().split(u'\n');
    QVERIFY(zeilen[0].startsWith(u"Lebensmittel\tMenge g\tEnergie kcal\t"_s));
    QVERIFY2(zeilen[1].startsWith(u"Brot\t50\t120\t"_s), qPrintable(zeilen[1]));
    QCOMPARE(plan.hinweise->hinweise().first().text, u"Als Tabelle kopiert: 1 Zeile."_s);
    plan.SummenTabelle->setFocus();
    menueeintrag(*plan.window(), u"Als Tabelle kopieren"_s)->trigger();
    zeilen = QGuiApplication::clipboard()->text().split(u'\n');
    QVERIFY2(zeilen[1].startsWith(u"Summe\t50\t120\t"_s), qPrintable(zeilen[1]));
}

void TestTabellenaustausch::anEmptyListIsNotCopied()
{
    oeffne();
    QGuiApplication::clipboard()->setText(u"bleibt"_s);
    controller().Tabelle->setzeSchreibmarke(0, u"such"_s);
    menueeintrag(*controller().Hauptfenster, u"Als Tabelle kopieren"_s)->trigger();
    QCOMPARE(QGuiApplication::clipboard()->text(), u"bleibt"_s);
    QCOMPARE(hinweis(), u"In dieser Liste steht nichts zum Kopieren."_s);
}

QTEST_MAIN(TestTabellenaustausch)
#include "TestTabellenaustausch.moc"
