#include "Ausgabefenster.h"
#include "Austauschprobe.h"
#include "Bestandsvergleich.h"
#include "Einlesefenster.h"
#include "Hindernisse.h"
#include "Sprache.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QFileInfo>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using enum Naehrwert;

/// Lists that go out, through the windows and the clipboard.
class TestTabellenaustausch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_probe = std::make_unique<Austauschprobe>(); }
    void cleanup() { m_probe.reset(); }

    void aListGoesOutAndComesBack();
    void eachListGoesOut_data();
    void eachListGoesOut();
    void theFormIsChosenAndKept();
    void returnSaves();
    void withoutDocumentsItBeginsAtHome();
    void thePlansWindowMeansThePlan_data();
    void thePlansWindowMeansThePlan();
    void theListsFollowTheLanguage();
    void aTableThatIsNotWrittenIsTold_data();
    void aTableThatIsNotWrittenIsTold();
    void withoutADoorNothingHappens();
    void aListIsCopied_data();
    void aListIsCopied();
    void thePlanIsCopied();
    void anEmptyListIsNotCopied();

private:
    std::unique_ptr<Austauschprobe> m_probe;
};

void TestTabellenaustausch::aListGoesOutAndComesBack()
{
    const QString path = m_probe->heim.pfad(u"eigene.csv"_s);
    m_probe->gibAus(0, path);
    QCOMPARE(m_probe->hinweis(), u"Die Tabelle ist gesichert: "_s + path);
    QFile datei(path);
    QVERIFY(datei.open(QIODevice::ReadOnly));
    const QByteArray bytes = datei.readAll();
    QVERIFY(bytes.startsWith("\xEF\xBB\xBFLebensmittel;Energie (kcal);"));
    QVERIFY(bytes.contains("\r\n'=Mus;0,33333334;"));

    const Lebensmittelverzeichnis vorher = m_probe->controller().KundenDictionary;
    m_probe->controller().uebernimmEigene({}, {});
    const Einlesefenster *fenster = m_probe->lies(bytes);
    klicke(knopf(*fenster));
    QVERIFY(vergleiche(vorher, m_probe->controller().KundenDictionary).leer());
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
    m_probe->oeffne();
    m_probe->fenster->suche(u"r"_s);
    m_probe->controller().Planmoduloeffnen();
    m_probe->controller().planmodul->gibHinein(u"Brot"_s, 50);
    const QString path = m_probe->heim.pfad(u"liste.csv"_s);
    m_probe->gibAus(liste, path);
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
    m_probe->heim.waehleDatei = [&](QWidget *, const Dateifrage &frage, const auto &antwort) {
        vorschlag = frage.vorschlag;
        antwort(m_probe->heim.pfad(u"form.csv"_s));
    };
    m_probe->oeffne();
    for (const bool erstes : {true, false}) {
        menueeintrag(*m_probe->controller().Hauptfenster, u"Als Tabelle sichern"_s)->trigger();
        QPointer<Ausgabefenster> fenster =
            m_probe->controller().Hauptfenster->findChild<Ausgabefenster *>();
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
        QFile datei(m_probe->heim.pfad(u"form.csv"_s));
        QVERIFY(datei.open(QIODevice::ReadOnly));
        QVERIFY(datei.readAll().startsWith("Lebensmittel,Energie (kcal),"));
        QCOMPARE(vorschlag.endsWith(u"/Eigene Lebensmittel.csv"_s), true);
        if (!erstes) {
            QCOMPARE(vorschlag, m_probe->heim.pfad(u"Eigene Lebensmittel.csv"_s));
        }
        QTRY_VERIFY(fenster.isNull());
    }
}

void TestTabellenaustausch::returnSaves()
{
    int gefragt = 0;
    m_probe->heim.waehleDatei = [&gefragt](QWidget *, const Dateifrage &, const auto &) {
        ++gefragt;
    };
    m_probe->oeffne();
    menueeintrag(*m_probe->controller().Hauptfenster, u"Als Tabelle sichern"_s)->trigger();
    const auto *fenster = m_probe->controller().Hauptfenster->findChild<Ausgabefenster *>();
    QTest::keyClick(kind<QComboBox>(*fenster, "liste"), Qt::Key_Return);
    QCOMPARE(gefragt, 1);
}

/// A folder that is not there would be taken for a file's name.
void TestTabellenaustausch::withoutDocumentsItBeginsAtHome()
{
    QString ordner;
    m_probe->heim.waehleDatei = [&ordner](QWidget *, const Dateifrage &frage, const auto &) {
        ordner = QFileInfo(frage.vorschlag).path();
    };
    m_probe->oeffne();
    const QTemporaryDir leer;
    const QByteArray vorher = qgetenv("HOME");
    const QByteArray einstellungen = qgetenv("XDG_CONFIG_HOME");
    qputenv("HOME", leer.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", leer.path().toLocal8Bit());
    menueeintrag(*m_probe->controller().Hauptfenster, u"Lebensmittel einlesen"_s)->trigger();
    qputenv("HOME", vorher);
    qputenv("XDG_CONFIG_HOME", einstellungen);
    QCOMPARE(ordner, leer.path());
}

void TestTabellenaustausch::thePlansWindowMeansThePlan_data()
{
    QTest::addColumn<QStringList>("namen");
    QTest::addColumn<QString>("liste");
    QTest::newRow("a plan") << QStringList{u"Brot"_s} << u"Mahlzeitenplan (1)"_s;
    QTest::newRow("an empty plan") << QStringList() << u"Eigene Lebensmittel (2)"_s;
}

void TestTabellenaustausch::thePlansWindowMeansThePlan()
{
    QFETCH(QStringList, namen);
    m_probe->oeffne();
    m_probe->controller().Planmoduloeffnen();
    Planmodul &plan = *m_probe->controller().planmodul;
    for (const QString &name : namen) {
        plan.gibHinein(name, 50);
    }
    menueeintrag(*plan.window(), u"Als Tabelle sichern"_s)->trigger();
    QTEST(kind<QComboBox>(*plan.window(), "liste")->currentText(), "liste");
}

/// The main window stays open to the hand while the plan's asks, and with it the menu of languages.
void TestTabellenaustausch::theListsFollowTheLanguage()
{
    Sprache sprache(u"de"_s);
    m_probe->heim.sprich = [&sprache](const QString &kuerzel) {
        sprache.sprich(kuerzel);
    };
    QString vorschlag;
    m_probe->heim.waehleDatei = [&](QWidget *, const Dateifrage &frage, const auto &) {
        vorschlag = QFileInfo(frage.vorschlag).fileName();
    };
    m_probe->oeffne();
    m_probe->controller().Planmoduloeffnen();
    Planmodul &plan = *m_probe->controller().planmodul;
    plan.gibHinein(u"Brot"_s, 50);
    menueeintrag(*plan.window(), u"Als Tabelle sichern"_s)->trigger();
    const auto *fenster = plan.window()->findChild<Ausgabefenster *>();
    QCOMPARE(kind<QComboBox>(*fenster, "trennung")->currentText(), u"Strichpunkt ;"_s);

    m_probe->controller().waehleSprache(u"en"_s);
    QCoreApplication::processEvents();
    QCOMPARE(fenster->windowTitle(), u"Save as table"_s);
    const auto *liste = kind<QComboBox>(*fenster, "liste");
    QStringList listen;
    for (int i = 0; i < liste->count(); ++i) {
        listen << liste->itemText(i);
    }
    QCOMPARE(listen, QStringList({u"Own foods (2)"_s, u"Built-in foods (2)"_s,
                                  u"Search results (0)"_s, u"Meal plan (1)"_s}));
    QCOMPARE(liste->currentIndex(), 3);
    QCOMPARE(kind<QComboBox>(*fenster, "trennung")->currentText(), u"Comma ,"_s);
    QCOMPARE(kind<QComboBox>(*fenster, "dezimal")->currentText(), u"Point ."_s);
    klicke(kind<QPushButton>(*fenster, "sichern"));
    QCOMPARE(vorschlag, u"Meal plan.csv"_s);
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
    const QString path = m_probe->heim.pfad(voll ? u"liste.csv"_s : u"fehlt/liste.csv"_s);
    m_probe->gibAus(0, path);
    festplatte.reset();
    QVERIFY(!QFile::exists(path));
    QVERIFY(m_probe->hinweis().startsWith(u"Die Tabelle ist nicht gesichert: "_s));
    QVERIFY(m_probe->controller().hinweise->hinweise().first().warnung);
}

void TestTabellenaustausch::withoutADoorNothingHappens()
{
    m_probe->heim.waehleDatei = {};
    m_probe->oeffne();
    menueeintrag(*m_probe->controller().Hauptfenster, u"Lebensmittel einlesen"_s)->trigger();
    menueeintrag(*m_probe->controller().Hauptfenster, u"Als Tabelle sichern"_s)->trigger();
    QVERIFY(m_probe->controller().Hauptfenster->findChild<Ausgabefenster *>() == nullptr);
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
    m_probe->oeffne();
    m_probe->fenster->suche(u"r"_s);
    m_probe->controller().Tabelle->setzeSchreibmarke(
        0, m_probe->controller().Tabelle->modell()->kennung(spalte));
    menueeintrag(*m_probe->controller().Hauptfenster, u"Als Tabelle kopieren"_s)->trigger();
    const QMimeData *daten = QGuiApplication::clipboard()->mimeData();
    const QStringList zeilen = daten->text().split(u'\n');
    QCOMPARE(zeilen.size(), 4);
    QVERIFY(zeilen[0].startsWith(u"Lebensmittel\tEnergie (kcal)\t"_s));
    for (int i = 0; i < anfaenge.size(); ++i) {
        QVERIFY2(zeilen[i + 1].startsWith(anfaenge[i]), qPrintable(zeilen[i + 1]));
    }
    QVERIFY(zeilen[1].endsWith(u"\t+\t0\t-\t+"_s));
    QVERIFY(daten->html().contains(u"<th>Lebensmittel</th>"_s));
    QCOMPARE(m_probe->hinweis(), u"Als Tabelle kopiert: 2 Zeilen."_s);
}

void TestTabellenaustausch::thePlanIsCopied()
{
    m_probe->oeffne();
    m_probe->controller().Planmoduloeffnen();
    Planmodul &plan = *m_probe->controller().planmodul;
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
    m_probe->oeffne();
    QGuiApplication::clipboard()->setText(u"bleibt"_s);
    m_probe->controller().Tabelle->setzeSchreibmarke(0, u"such"_s);
    menueeintrag(*m_probe->controller().Hauptfenster, u"Als Tabelle kopieren"_s)->trigger();
    QCOMPARE(QGuiApplication::clipboard()->text(), u"bleibt"_s);
    QCOMPARE(m_probe->hinweis(), u"In dieser Liste steht nichts zum Kopieren."_s);
}

QTEST_MAIN(TestTabellenaustausch)
#include "TestTabellenaustausch.moc"
