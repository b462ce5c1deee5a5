// Days and desk joined: the way to them in the menus, whose records they are, what comes from the
// main table, the plan and the calculator, and the file for nobody's records.

#include "Klientenprobe.h"

#include "Massfenster.h"
#include "Sprache.h"

#include <QJsonDocument>
#include <QMenuBar>
#include <QTableView>

using namespace Qt::StringLiterals;
using Art = Tagesmodell::Art;

class TestTageanschluss : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theKeyOpensTheWindow();
    void thePlanLeadsThereToo();
    void theWindowStandsWhereItWasLeft();
    void theWindowRollsWhereTheScreenIsSmall();
    void nobodysRecordsStandInAFile();
    void theClientAtTheDeskHasTheirOwn();
    void whatIsBeingTypedBelongsToTheOneBefore();
    void theEndKeepsWhatIsBeingTyped();
    void aDoubleClickGoesWhereTheUserWasLast();
    void emptyLinesAreNoFood();
    void theNeedComesFromTheCalculator();
    void aDayBecomesThePlanAndComesBack();
    void aKeptPlanBecomesRows();
    void ownFoodsAreFoundAndHaveMeasures();
    void theMainWindowLeadsToTheMeasures();
    void whatCanNotBeKeptIsToldAndKeptLater();
    void measuresThatCanNotBeKeptAreTold();
    void aDamagedFileIsKeptBeside();
    void aNewerFileIsLeftAlone();
    void theLanguageChangesTheWindowToo();

private:
    QString pfad(const QString &name) const
    {
        return QFileInfo(m_heim->eigeneDatei()).dir().filePath(name);
    }
    void oeffne() { m_probe = std::make_unique<Klientenprobe>(*m_heim); }
    Tageanschluss &anschluss() const { return m_probe->programm().oberflaeche().tage; }
    Tagefenster &fenster() const { return anschluss().fenster(); }
    void oeffneTage() const
    {
        m_probe->programm()->Hauptfenster->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_probe->programm()->Hauptfenster));
        QTest::keyClick(m_probe->programm()->Hauptfenster, Qt::Key_D, Qt::ControlModifier);
        QVERIFY(anschluss().offenes() != nullptr);
        QVERIFY(QTest::qWaitForWindowActive(&fenster()));
    }
    void neuesProtokoll() const
    {
        oeffneTage();
        QTest::keyClick(&fenster(), Qt::Key_N, Qt::ControlModifier);
    }
    static void tippe(const QString &text)
    {
        for (const QChar &zeichen : text) {
            QKeyEvent taste(QEvent::KeyPress, 0, Qt::NoModifier, zeichen);
            QApplication::sendEvent(QApplication::focusWidget(), &taste);
        }
    }
    static void gibEin(const QString &name, const QString &angabe)
    {
        tippe(name);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        tippe(angabe);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    /// The foods of a meal of the first day, with what they weigh.
    QString zeilen(int mahlzeit = 0) const
    {
        QStringList alle;
        const std::optional<Aufzeichnung> eine = fenster().buch.jetzige();
        for (const Mahlzeitzeile &zeile : eine->tage[0].mahlzeiten[mahlzeit].zeilen) {
            alle << u"%1 %2"_s.arg(zeile.schluessel).arg(zeile.gramm.value_or(-1));
        }
        return alle.join(u", "_s);
    }
    QString klient(const QString &name) const
    {
        Person person;
        person.name = name;
        return m_probe->kartei().sichere({QString(), person, {}});
    }
    QAction *eintrag(const QString &text) const
    {
        for (QAction *einer : fenster().findChildren<QAction *>()) {
            if (einer->text().remove(u'&') == text) {
                return einer;
            }
        }
        return nullptr;
    }
    void doppelklick(int zeile) const
    {
        const Probefenster &programm = m_probe->programm();
        programm->Hauptfenster->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(programm->Hauptfenster));
        programm.klicke(zeile, inName);
        QWindow *haupt = programm->Hauptfenster->windowHandle();
        QTest::mouseDClick(haupt, Qt::LeftButton, {},
                           programm->Tabelle->viewport()->mapTo(programm->Hauptfenster,
                                                                programm.mitte(zeile, inName)));
    }
    static void schreibe(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    /// Something lies where the folder of the user's files is; or the folder is back.
    void verstelleOrdner(bool verstellt) const
    {
        const QString ordner = QFileInfo(m_heim->eigeneDatei()).path();
        if (verstellt) {
            QVERIFY(QFile::rename(ordner, ordner + u"-weg"_s));
            schreibe(ordner, "x");
        } else {
            QVERIFY(QFile::remove(ordner));
            QVERIFY(QFile::rename(ordner + u"-weg"_s, ordner));
        }
    }
    static QByteArray bytes(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Klientenprobe> m_probe;
};

void TestTageanschluss::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(
        verzeichnis({lebensmittel(u"-"_s),
                     lebensmittel(u"Apfel"_s, {{Naehrwert::kal, 50}, {Naehrwert::kh, 12.5}}),
                     lebensmittel(u"Milch"_s, {{Naehrwert::kal, 60}}),
                     lebensmittel(u"Toast"_s, {{Naehrwert::kal, 200}})}));
    m_heim->schreibeEigene(verzeichnis({lebensmittel(u"Müsli"_s, {{Naehrwert::kal, 400}})}));
}

void TestTageanschluss::cleanup()
{
    m_probe.reset();
    m_heim.reset();
}

void TestTageanschluss::theKeyOpensTheWindow()
{
    oeffne();
    QAction *eintrag = m_probe->programm()->Hauptfenster->findChild<QAction *>(u"aktionTage"_s);
    QVERIFY(eintrag != nullptr);
    QVERIFY(anschluss().offenes() == nullptr);
    oeffneTage();
    QVERIFY(fenster().isVisible());
    QCOMPARE(fenster().windowTitle(), u"Tage und Mahlzeiten"_s);
    QVERIFY(!QFile::exists(pfad(u"MahlbergTage.json"_s)));
}

void TestTageanschluss::thePlanLeadsThereToo()
{
    oeffne();
    m_probe->programm()->Planmoduloeffnen();
    QAction *eintrag =
        m_probe->programm()->planmodul->window()->findChild<QAction *>(u"aktionTage"_s);
    QVERIFY(eintrag != nullptr);
    eintrag->trigger();
    QVERIFY(fenster().isVisible());
}

void TestTageanschluss::theWindowStandsWhereItWasLeft()
{
    const QRect platz(40, 50, 640, 420);
    oeffne();
    oeffneTage();
    fenster().setGeometry(platz);
    fenster().close();
    m_probe.reset();
    oeffne();
    oeffneTage();
    QCOMPARE(fenster().geometry(), platz);
}

/// A screen of 1366 x 768 at twice the scale has half as many points.
void TestTageanschluss::theWindowRollsWhereTheScreenIsSmall()
{
    oeffne();
    neuesProtokoll();
    QVERIFY(fenster().minimumSizeHint().width() <= 683);
    QVERIFY(fenster().minimumSizeHint().height() <= 384);
    fenster().resize(fenster().minimumSizeHint());
    QCoreApplication::processEvents();
    QCOMPARE(fenster().size(), fenster().minimumSizeHint());
    QVERIFY(fenster().inhalt->width() >= fenster().inhalt->minimumSizeHint().width());
}

void TestTageanschluss::nobodysRecordsStandInAFile()
{
    oeffne();
    neuesProtokoll();
    gibEin(u"Apfel"_s, u"150"_s);
    QCoreApplication::processEvents();
    QVERIFY(bytes(pfad(u"MahlbergTage.json"_s)).contains("Apfel"));
    const auto rechte = QFile::permissions(pfad(u"MahlbergTage.json"_s));
    QVERIFY(!(rechte & (QFileDevice::ReadGroup | QFileDevice::ReadOther)));
    m_probe.reset();
    oeffne();
    oeffneTage();
    QCOMPARE(zeilen(), u"Apfel 150"_s);
}

void TestTageanschluss::theClientAtTheDeskHasTheirOwn()
{
    oeffne();
    neuesProtokoll();
    gibEin(u"Apfel"_s, u"150"_s);
    QVERIFY(m_probe->tisch().nimm(klient(u"Anna Muster"_s)));
    QVERIFY(!fenster().buch.jetzige());
    QCOMPARE(fenster().windowTitle(), u"Anna Muster – Tage und Mahlzeiten"_s);
    QCOMPARE(fenster().fusszeile->text(), u"Aufzeichnungen von Anna Muster."_s);
    neuesProtokoll();
    gibEin(u"Milch"_s, u"200"_s);
    QCOMPARE(m_probe->akte().aufzeichnungen.size(), 1);
    m_probe->tisch().verlasse();
    QCOMPARE(zeilen(), u"Apfel 150"_s);
    QCOMPARE(fenster().windowTitle(), u"Tage und Mahlzeiten"_s);
    QVERIFY(m_probe->tisch().nimm(m_probe->akte().person.kennung));
    QCOMPARE(zeilen(), u"Milch 200"_s);
    QVERIFY(bytes(pfad(u"MahlbergTage.json"_s)).contains("Apfel"));
    QVERIFY(!bytes(pfad(u"MahlbergTage.json"_s)).contains("Milch"));
}

void TestTageanschluss::whatIsBeingTypedBelongsToTheOneBefore()
{
    oeffne();
    const QString anna = klient(u"Anna"_s);
    const QString bert = klient(u"Bert"_s);
    QVERIFY(m_probe->tisch().nimm(anna));
    neuesProtokoll();
    tippe(u"Toast"_s);
    QVERIFY(m_probe->tisch().nimm(bert));
    QVERIFY(!fenster().buch.jetzige());
    const QList<Aufzeichnung> beiAnna = m_probe->kartei().akte(anna)->aufzeichnungen;
    QCOMPARE(beiAnna.constFirst().tage[0].mahlzeiten[0].zeilen.size(), 1);
    QVERIFY(m_probe->kartei().akte(bert)->aufzeichnungen.isEmpty());
}

void TestTageanschluss::theEndKeepsWhatIsBeingTyped()
{
    oeffne();
    neuesProtokoll();
    tippe(u"Toast"_s);
    m_probe->programm()->Hauptfenster->close();
    QVERIFY(bytes(pfad(u"MahlbergTage.json"_s)).contains("Toast"));
}

void TestTageanschluss::aDoubleClickGoesWhereTheUserWasLast()
{
    oeffne();
    neuesProtokoll();
    doppelklick(1); // the row of the apple
    QCOMPARE(zeilen(), u"Apfel 100"_s);
    QVERIFY(m_probe->programm()->planmodul == nullptr ||
            m_probe->programm()->planmodul->PlanArray.isEmpty());
    QVERIFY(
        m_probe->hauptsaetze().constFirst().startsWith(u"„Apfel“ steht jetzt bei den Tagen: "_s));
    doppelklick(0); // the line without values is no food for either
    QCOMPARE(zeilen(), u"Apfel 100"_s);

    m_probe->programm()->Planmoduloeffnen();
    QVERIFY(QTest::qWaitForWindowActive(m_probe->programm()->planmodul->window()));
    doppelklick(2);
    QCOMPARE(zeilen(), u"Apfel 100"_s);
    QCOMPARE(m_probe->programm()->planmodul->PlanArray, QStringList{u"Milch"_s});

    oeffneTage();
    doppelklick(2);
    QCOMPARE(zeilen(), u"Apfel 100, Milch 100"_s);
    fenster().close(); // who closes it has the plan in mind again
    doppelklick(1);
    QCOMPARE(m_probe->programm()->planmodul->PlanArray, (QStringList{u"Milch"_s, u"Apfel"_s}));
}

void TestTageanschluss::emptyLinesAreNoFood()
{
    oeffne();
    neuesProtokoll();
    gibEin(u"-"_s, u"10"_s);
    QVERIFY(fenster().buch.jetzige()->tage[0].mahlzeiten[0].zeilen[0].schluessel.isNull());
}

/// 200 g with 12.5 g of carbohydrate each 100 g are 25 g x 4 kcal = 100 kcal, 5 % of 2000.
void TestTageanschluss::theNeedComesFromTheCalculator()
{
    oeffne();
    neuesProtokoll();
    gibEin(u"Apfel"_s, u"200"_s);
    Planmodul::klient.bedarf = 2000;
    Planmodul::klient.unbereinigt = 2000;
    Q_EMIT m_probe->programm().rechner().angabeGeaendert();
    QCoreApplication::processEvents();
    QCOMPARE(fenster().summen->model()->index(0, Summenmodell::Tagesanteil).data().toString(),
             u"5"_s);
    Planmodul::klient = {};
}

void TestTageanschluss::aDayBecomesThePlanAndComesBack()
{
    oeffne();
    neuesProtokoll();
    gibEin(u"Apfel"_s, u"200"_s);
    gibEin(u"Milch"_s, u"100"_s);
    gibEin(u"Apfel"_s, u"50"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    eintrag(u"Als Plan auf den Schreibtisch"_s)->trigger();
    const Planmodul *plan = m_probe->programm()->planmodul;
    QVERIFY(plan != nullptr);
    QCOMPARE(plan->PlanArray, (QStringList{u"Apfel"_s, u"Milch"_s}));
    QCOMPARE(plan->mengenarray, (QList<float>{250, 100}));
    fenster().ansicht->geheZu({Art::Mahlzeit, 2, 0}, Tagesmodell::Name);
    eintrag(u"Plan vom Schreibtisch übernehmen"_s)->trigger();
    QCOMPARE(zeilen(2), u"Apfel 250, Milch 100"_s);
}

void TestTageanschluss::aKeptPlanBecomesRows()
{
    oeffne();
    QVERIFY(m_probe->tisch().nimm(klient(u"Anna"_s)));
    m_probe->programm()->Planmoduloeffnen();
    m_probe->programm()->planmodul->gibHinein(u"Toast"_s, 40);
    m_probe->tisch().legePlanAb();
    neuesProtokoll();
    bool gesehen = false;
    QTimer::singleShot(0, this, [&] {
        QWidget *blatt = QApplication::activeModalWidget();
        gesehen = blatt != nullptr;
        if (gesehen) {
            QTest::keyClick(blatt, Qt::Key_Return);
        }
    });
    eintrag(u"Abgelegten Plan übernehmen …"_s)->trigger();
    for (int mal = 0; mal < 50 && zeilen().isEmpty(); ++mal) {
        QTest::qWait(10);
        if (QWidget *blatt = QApplication::activeModalWidget()) {
            QTest::keyClick(blatt, Qt::Key_Return);
        }
    }
    QCOMPARE(zeilen(), u"Toast 40"_s);
}

void TestTageanschluss::ownFoodsAreFoundAndHaveMeasures()
{
    EigeneMasse masse(pfad(u"MahlbergMasse.json"_s));
    QVERIFY(masse.setze(u"Müsli"_s, {{.eines = u"Schale"_s,
                                      .viele = u"Schalen"_s,
                                      .einesEn = u"bowl"_s,
                                      .vieleEn = u"bowls"_s,
                                      .gramm = 80}}));
    oeffne();
    neuesProtokoll();
    gibEin(u"mü"_s, u"2 Schalen"_s);
    QCOMPARE(zeilen(), u"Müsli 160"_s);
}

void TestTageanschluss::theMainWindowLeadsToTheMeasures()
{
    oeffne();
    const Probefenster &programm = m_probe->programm();
    QAction *masse = programm->Hauptfenster->findChild<QAction *>(u"aktionMasse"_s);
    QVERIFY(masse != nullptr);
    masse->trigger(); // nothing is chosen yet
    QVERIFY(programm->Hauptfenster->findChild<Massfenster *>() == nullptr);
    QCOMPARE(m_probe->hauptsaetze().value(0),
             u"Wählen Sie zuerst ein Lebensmittel in der Tabelle aus."_s);
    programm.klicke(1, inName);
    masse->trigger();
    QVERIFY(programm->Hauptfenster->findChild<Massfenster *>() != nullptr);
}

void TestTageanschluss::whatCanNotBeKeptIsToldAndKeptLater()
{
    oeffne();
    neuesProtokoll();
    verstelleOrdner(true);
    gibEin(u"Apfel"_s, u"150"_s);
    QCoreApplication::processEvents();
    QVERIFY(fenster().hinweise->hinweise().constFirst().text.startsWith(
        u"Die Aufzeichnungen lassen sich gerade nicht sichern;"_s));
    verstelleOrdner(false);
    gibEin(u"Milch"_s, u"100"_s);
    QCoreApplication::processEvents();
    QVERIFY(fenster().hinweise->hinweise().isEmpty());
    m_probe.reset();
    oeffne();
    oeffneTage();
    QCOMPARE(zeilen(), u"Apfel 150, Milch 100"_s);
}

void TestTageanschluss::measuresThatCanNotBeKeptAreTold()
{
    const auto becher = [](double gramm) {
        return QList<Mass>{{u"Becher"_s, u"Becher"_s, u"cup"_s, u"cups"_s, gramm}};
    };
    oeffne();
    verstelleOrdner(true);
    QVERIFY(!anschluss().eigeneMasse().setze(u"Apfel"_s, becher(200)));
    QCOMPARE(m_probe->hauptsaetze(), QStringList{anschluss().eigeneMasse().hindernis()});
    verstelleOrdner(false);
    QVERIFY(anschluss().eigeneMasse().setze(u"Apfel"_s, becher(250)));
    QVERIFY(m_probe->hauptsaetze().isEmpty());
    QCOMPARE(EigeneMasse(pfad(u"MahlbergMasse.json"_s)).masseFuer(u"Apfel"_s), becher(250));
}

void TestTageanschluss::aDamagedFileIsKeptBeside()
{
    schreibe(pfad(u"MahlbergTage.json"_s), "[{ no file of ours");
    oeffne();
    oeffneTage();
    QCOMPARE(fenster().hinweise->hinweise().size(), 1);
    QVERIFY(fenster().hinweise->hinweise().constFirst().text.startsWith(
        u"Die Aufzeichnungen ohne Klienten waren nicht ganz zu lesen; aufgehoben sind sie als „"_s));
    neuesProtokoll();
    const QStringList dateien =
        QFileInfo(pfad(u"MahlbergTage.json"_s)).dir().entryList({u"MahlbergTage*"_s}, QDir::Files);
    QVERIFY(dateien.size() >= 2);
    QVERIFY(std::any_of(dateien.begin(), dateien.end(), [this](const QString &eine) {
        return bytes(pfad(eine)) == "[{ no file of ours";
    }));
}

void TestTageanschluss::aNewerFileIsLeftAlone()
{
    const QByteArray neuere = R"({"format":"Mahlberg diary","version":99,"records":[]})";
    schreibe(pfad(u"MahlbergTage.json"_s), neuere);
    oeffne();
    oeffneTage();
    QVERIFY(fenster().hinweise->hinweise().constFirst().warnung);
    QTest::keyClick(&fenster(), Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(bytes(pfad(u"MahlbergTage.json"_s)), neuere);
}

void TestTageanschluss::theLanguageChangesTheWindowToo()
{
    Sprache sprache(u"de"_s);
    m_heim->sprich = [&](const QString &kuerzel) {
        sprache.sprich(kuerzel);
    };
    oeffne();
    neuesProtokoll();
    gibEin(u"Apfel"_s, u"200"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    m_probe->programm().oberflaeche().sprich(u"en"_s);
    QCOMPARE(fenster().windowTitle(), u"Days and meals"_s);
    QCOMPARE(fenster().art->currentText(), u"Food record"_s);
    const QAbstractItemModel &modell = *fenster().ansicht->model();
    QCOMPARE(modell.index(0, 0).data().toString(), u"Breakfast"_s);
    QCOMPARE(modell.headerData(Tagesmodell::Name, Qt::Horizontal).toString(), u"Food"_s);
    m_probe->programm().oberflaeche().sprich(u"de"_s);
    QCOMPARE(modell.index(0, 0).data().toString(), u"Frühstück"_s);
}

QTEST_MAIN(TestTageanschluss)
#include "TestTageanschluss.moc"
