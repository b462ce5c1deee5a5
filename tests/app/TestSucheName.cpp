#include "Probefenster.h"

#include <QRandomGenerator>
#include <QTest>

using enum Naehrwert;

/// The search by name: what it lists, and what it does to the table and the display meanwhile.
class TestSucheName : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_heim = std::make_unique<Probeheim>(); }
    void cleanup();
    void theListsHoldWhatContainsTheText_data();
    void theListsHoldWhatContainsTheText();
    void builtInFoodsAreFoundByWhatTheyRead_data();
    void builtInFoodsAreFoundByWhatTheyRead();
    void ownFoodsAreFoundAsTyped();
    void theColumnShowsTheList();
    void aDragOfAResultCarriesTheKey();
    void randomTablesAreSearchedLikeAPlainReference();
    void aSearchReplacesTheOneBefore();
    void theFirstFoodIsShownOnceForEachThatDoesNotMatch_data();
    void theFirstFoodIsShownOnceForEachThatDoesNotMatch();
    void withoutTakeOverOnlyTheSelectionMoves();
    void whenEveryFoodMatchesTheSelectionStays();
    void takingTheFirstFoodOverCountsAsChosenWithoutAClick();
    void anEmptyTableIsSearchedWithoutAMessage();
    void builtInHitsAreLogged();
    void theIndicatorShowsWhileTheSearchRuns();
    void theColumnFillsWhileTheSearchRuns();

private:
    void oeffne(const Lebensmittelverzeichnis &eingebaut,
                const Lebensmittelverzeichnis &eigene = {});
    void suche(const QString &text) const;
    AppController &controller() const { return m_fenster->controller(); }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

Lebensmittelverzeichnis speisen(const QStringList &namen)
{
    Lebensmittelverzeichnis alle;
    for (const QString &name : namen) {
        alle.insert(name, lebensmittel(name, {{kal, 100}}));
    }
    return alle;
}

QStringList liste(const char *namen)
{
    return QString::fromUtf8(namen).split(u'|');
}

/// Counts how often a name is translated: whoever puts a food on display does it once.
class Zaehlwerk : public QTranslator
{
public:
    explicit Zaehlwerk(const QString &name) : m_name(name.toUtf8())
    {
        QCoreApplication::installTranslator(this);
    }
    ~Zaehlwerk() override { QCoreApplication::removeTranslator(this); }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        m_zahl += m_name == text ? 1 : 0;
        return {};
    }
    bool isEmpty() const override { return false; }
    int zahl() const { return m_zahl; }

private:
    QByteArray m_name;
    mutable int m_zahl = 0;
};

/// Runs at each event of one kind that a widget gets.
class Horcher : public QObject
{
public:
    Horcher(QObject *objekt, QEvent::Type art, std::function<void()> aufruf)
        : m_art(art)
        , m_aufruf(std::move(aufruf))
    {
        objekt->installEventFilter(this);
    }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == m_art) {
            m_aufruf();
        }
        return false;
    }

private:
    QEvent::Type m_art;
    std::function<void()> m_aufruf;
};

} // namespace

void TestSucheName::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestSucheName::oeffne(const Lebensmittelverzeichnis &eingebaut,
                           const Lebensmittelverzeichnis &eigene)
{
    m_heim->schreibeTabelle(eingebaut);
    m_heim->schreibeEigene(eigene);
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void TestSucheName::suche(const QString &text) const
{
    controller().suchfeld->setFocus();
    controller().suchfeld->selectAll();
    QTest::keyClick(controller().suchfeld, Qt::Key_Delete);
    controller().suchfeld->insert(text); // QTest has no key for an umlaut
    QTest::keyClick(controller().suchfeld, Qt::Key_Return);
}

void TestSucheName::theListsHoldWhatContainsTheText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("treffer"); // from row 1
    const auto zeile = [](const char *name, const char *text, const char *treffer) {
        QTest::newRow(name) << QString::fromUtf8(text) << liste(treffer);
    };
    zeile("small letters find capitals", "quark", "Magerquark|Quark|Quark");
    zeile("capitals find small letters", "BROT", "Brot|brotaufstrich|Butterbrot");
    zeile("own foods come first, each list in its order, the same name twice", "Quark",
          "Magerquark|Quark|Quark");
    zeile("in the middle of a name", "utterb", "Butterbrot");
    zeile("at its end", "strich", "brotaufstrich");
    zeile("a whole name", "Zucker, braun", "Zucker, braun");
    zeile("one letter", "z", "Zucker, braun");
    zeile("a blank is a letter like any other", "r, ", "Zucker, braun");
    zeile("umlauts have capitals too", "äPF", "Äpfel");
    zeile("an umlaut is a letter of its own", "apf", "Apfel");
    zeile("a point is a point", "1.5", "Milch 1.5 %");
    zeile("signs have no meaning", "1?5", "");
    zeile("the sign of row 0 can be looked for", "-", "Vitamin-Saft");
    zeile("nothing is found", "Kaviar", "");
    zeile("blanks around the text belong to it", " Quark", "");
}

void TestSucheName::theListsHoldWhatContainsTheText()
{
    QFETCH(QString, text);
    QFETCH(QStringList, treffer);
    oeffne(speisen(liste("Apfel|Äpfel|Butterbrot|Quark|Zucker, braun|Milch 1.5 %|Vitamin-Saft")),
           speisen(liste("Magerquark|Quark|Brot|brotaufstrich")));
    suche(text);
    treffer.removeAll(QString());
    treffer.prepend(QStringLiteral("-"));
    QCOMPARE(controller().suchArray, treffer);
    QCOMPARE(controller().suchArray2, treffer);
}

void TestSucheName::builtInFoodsAreFoundByWhatTheyRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("anzeige");
    QTest::addColumn<QStringList>("schluessel");
    const auto zeile = [](const char *name, const char *text, const char *anzeige,
                          const char *schluessel) {
        QTest::newRow(name) << QString::fromUtf8(text) << liste(anzeige) << liste(schluessel);
    };
    zeile("by the translation", "appl", "-|Apple", "-|Apfel");
    zeile("not by the key", "apfel", "-", "-");
    zeile("the column keeps the keys of all", "bread", "-|Bread|Bread", "-|Graubrot|Weißbrot");
    zeile("without a translation by the key", "zuck", "-|Zucker", "-|Zucker");
    zeile("in the order of what they read", "e", "-|Eigenbrot|Apple|Bread|Bread|Zucker",
          "-|Eigenbrot|Apfel|Graubrot|Weißbrot|Zucker");
}

void TestSucheName::builtInFoodsAreFoundByWhatTheyRead()
{
    QFETCH(QString, text);
    QFETCH(QStringList, anzeige);
    QFETCH(QStringList, schluessel);
    const Probeuebersetzer englisch({{QStringLiteral("Apfel"), QStringLiteral("Apple")},
                                     {QStringLiteral("Graubrot"), QStringLiteral("Bread")},
                                     {QStringLiteral("Weißbrot"), QStringLiteral("Bread")}});
    oeffne(speisen(liste("Apfel|Graubrot|Weißbrot|Zucker")), speisen(liste("Eigenbrot")));
    suche(text);
    QCOMPARE(controller().suchArray, anzeige);
    QCOMPARE(controller().suchArray2, schluessel);
}

void TestSucheName::ownFoodsAreFoundAsTyped()
{
    const Probeuebersetzer englisch({{QStringLiteral("Omas Brot"), QStringLiteral("Bread")}});
    oeffne(speisen(liste("Zucker")), speisen(liste("Omas Brot")));
    suche(QStringLiteral("bread"));
    QCOMPARE(controller().suchArray, liste("-"));
    suche(QStringLiteral("omas"));
    QCOMPARE(controller().suchArray, liste("-|Omas Brot"));
    QCOMPARE(m_fenster->zelle(1, inSuch).text, QString()); // the table has one row
    QCOMPARE(m_fenster->zelle(0, inEigen).text, QStringLiteral("Bread"));
}

void TestSucheName::theColumnShowsTheList()
{
    oeffne(speisen(liste("Apfel|Butter|Quark|Zucker")), speisen(liste("Eigenes mit Butter")));
    suche(QStringLiteral("butter"));
    const QStringList spalte = liste("-|Eigenes mit Butter|Butter|");
    for (int zeile = 0; zeile < spalte.size(); ++zeile) {
        QCOMPARE(m_fenster->zelle(zeile, inSuch).text, spalte[zeile]);
    }
}

void TestSucheName::aDragOfAResultCarriesTheKey()
{
    const Probeuebersetzer englisch({{QStringLiteral("Apfel"), QStringLiteral("Apple")}});
    oeffne(speisen(liste("Apfel|Butter")));
    suche(QStringLiteral("apple"));
    const Tabellenmodell &modell = *controller().Tabelle->modell();
    QCOMPARE(modell.ziehtext(inSuch, 1), QStringLiteral("Apfel"));
    QCOMPARE(modell.ziehtext(inSuch, 0), QStringLiteral("-"));
}

/// The same search, written as it would be told.
static QStringList nachgeschlagen(const QStringList &eigene, const QStringList &eingebaute,
                                  const QString &text)
{
    QStringList treffer = {QStringLiteral("-")};
    for (const QString &name : eigene + eingebaute) {
        if (!text.isEmpty() && name.toCaseFolded().contains(text.toCaseFolded())) {
            treffer << name;
        }
    }
    return treffer;
}

void TestSucheName::randomTablesAreSearchedLikeAPlainReference()
{
    QRandomGenerator zufall(4711);
    const QString buchstaben = QStringLiteral("aAbBäÄéß -1");
    const auto wort = [&zufall, &buchstaben](int laenge) {
        QString neu;
        for (int i = 0; i < laenge; ++i) {
            neu += buchstaben[zufall.bounded(static_cast<int>(buchstaben.size()))];
        }
        return neu;
    };
    for (int runde = 0; runde < 5; ++runde) {
        QStringList eingebaute;
        QStringList eigene;
        for (int i = 0; i < 80; ++i) {
            eingebaute << wort(zufall.bounded(1, 9));
            eigene << wort(zufall.bounded(1, 9));
        }
        oeffne(speisen(eingebaute), speisen(eigene));
        controller().direkteuebernahme->setChecked(runde % 2 == 0);
        for (int i = 0; i < 40; ++i) {
            const QString text = wort(zufall.bounded(0, 4));
            controller().suchfeld->setStringValue(text);
            controller().suchen(*controller().suchfeld);
            QCOMPARE(controller().suchArray,
                     nachgeschlagen(controller().KundenArray, controller().Array, text));
            QCOMPARE(controller().suchArray2, controller().suchArray);
        }
        m_fenster.reset();
    }
}

void TestSucheName::aSearchReplacesTheOneBefore()
{
    oeffne(zaehltabelle(30));
    suche(QStringLiteral("speise"));
    QCOMPARE(controller().suchArray.size(), 31);
    suche(QStringLiteral("0007"));
    QCOMPARE(controller().suchArray, QStringList({QStringLiteral("-"), zaehlname(7)}));
    QCOMPARE(m_fenster->zelle(2, inSuch).text, QString());
}

void TestSucheName::theFirstFoodIsShownOnceForEachThatDoesNotMatch_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("male");
    QTest::newRow("one food matches") << QStringLiteral("0007") << 19;
    QTest::newRow("the first one matches") << QStringLiteral("0000") << 19;
    QTest::newRow("half of them match") << QStringLiteral("speise 001") << 10;
    QTest::newRow("none matches") << QStringLiteral("Kaviar") << 20;
    QTest::newRow("an empty text matches none") << QString() << 20;
    QTest::newRow("own foods don't count") << QStringLiteral("eigen") << 20;
    QTest::newRow("all match") << QStringLiteral("SPEISE") << 0;
}

void TestSucheName::theFirstFoodIsShownOnceForEachThatDoesNotMatch()
{
    QFETCH(QString, text);
    QFETCH(int, male);
    oeffne(zaehltabelle(20), speisen(liste("Eigenes|Eigenes 2|Ganz Eigenes")));
    m_fenster->klicke(5, inName);
    controller().suchfeld->setStringValue(text);
    const Zaehlwerk zaehlwerk(zaehlname(0));
    controller().suchen(*controller().suchfeld);
    QCOMPARE(zaehlwerk.zahl(), male);
    QCOMPARE(controller().Tabelle->selectedRow(), male > 0 ? 0 : 5);
    QCOMPARE(controller().unuebersetztername, zaehlname(male > 0 ? 0 : 5));
}

void TestSucheName::withoutTakeOverOnlyTheSelectionMoves()
{
    oeffne(zaehltabelle(900));
    m_fenster->klicke(850, inName);
    QTest::mouseClick(controller().direkteuebernahme, Qt::LeftButton);
    QVERIFY(!controller().direkteuebernahme->isChecked());
    suche(QStringLiteral("0007"));
    QCOMPARE(controller().Tabelle->selectedRow(), 0);
    QCOMPARE(controller().Tabelle->rowAt(0), 0); // and the table is at its top
    QCOMPARE(Probefenster::text(*controller().feldA), zaehlname(850));
    QCOMPARE(Probefenster::text(*controller().feldB), QStringLiteral("851 kcal"));
    QCOMPARE(controller().suchArray2.value(1), zaehlname(7));
}

void TestSucheName::whenEveryFoodMatchesTheSelectionStays()
{
    oeffne(zaehltabelle(900), speisen(liste("Eigenes")));
    m_fenster->klicke(850, inName);
    const int oben = controller().Tabelle->rowAt(0);
    suche(QStringLiteral("speise"));
    QCOMPARE(controller().Tabelle->selectedRow(), 850);
    QCOMPARE(controller().Tabelle->rowAt(0), oben);
    QCOMPARE(Probefenster::text(*controller().feldA), zaehlname(850));
    QCOMPARE(controller().suchArray.size(), 901);
}

void TestSucheName::takingTheFirstFoodOverCountsAsChosenWithoutAClick()
{
    oeffne(zaehltabelle(20), speisen(liste("Eigenes")));
    m_fenster->klicke(0, inEigen);
    QVERIFY(controller().loeschenknopf->isEnabled());
    QCOMPARE(controller().welcheTabelleAktiv, 2);
    suche(QStringLiteral("0007"));
    QCOMPARE(AppController::angeklickteSpalte, -1);
    QCOMPARE(controller().welcheTabelleAktiv, 1);
    QVERIFY(!controller().loeschenknopf->isEnabled());
    QVERIFY(controller().lebensmittelmenge->isEnabled());
    QVERIFY(controller().proteinanzeige->isHidden()); // row 0 has no bars
    QVERIFY(m_fenster->zelle(0, inName).umrandet);
    QVERIFY(!m_fenster->zelle(0, inSuch).umrandet);
    QCOMPARE(Probefenster::text(*controller().feldB), QStringLiteral("1 kcal"));
}

void TestSucheName::anEmptyTableIsSearchedWithoutAMessage()
{
    oeffne({}, speisen(liste("Eigenes")));
    m_heim->meldungen.clear(); // that of the start
    suche(QStringLiteral("eigen"));
    QCOMPARE(controller().suchArray, liste("-|Eigenes"));
    suche(QStringLiteral("Kaviar"));
    QCOMPARE(controller().suchArray, liste("-"));
    QVERIFY(m_heim->meldungen.isEmpty());
}

void TestSucheName::builtInHitsAreLogged()
{
    const Probeuebersetzer englisch({{QStringLiteral("Apfel"), QStringLiteral("Apple")}});
    oeffne(speisen(liste("Apfel|Pampelmuse|Quark")), speisen(liste("Apple pie")));
    suche(QStringLiteral("ap"));
    QCOMPARE(m_heim->protokoll, QStringList{QStringLiteral("array:Apple\n")});
}

void TestSucheName::theIndicatorShowsWhileTheSearchRuns()
{
    oeffne(zaehltabelle(20));
    QVERIFY(controller().suchfortschritt->isHidden());
    QStringList verlauf;
    const auto merke = [this, &verlauf](const QString &wort) {
        verlauf << wort + QString::number(controller().suchArray.size());
    };
    suche(QStringLiteral("speise 001"));
    const Horcher anfang(controller().suchfortschritt, QEvent::Show,
                         [&merke] { merke(QStringLiteral("Start ")); });
    const Horcher ende(controller().suchfortschritt, QEvent::Hide,
                       [&merke] { merke(QStringLiteral("Stop ")); });
    m_heim->beimProtokoll = [this, &merke] {
        QVERIFY(controller().suchfortschritt->isVisible());
        merke(QString());
    };
    suche(QStringLiteral("0007"));
    // It starts over the results of before, and stops when all is found.
    QCOMPARE(verlauf, liste("Start 11|2|Stop 2"));
    QVERIFY(controller().suchfortschritt->isHidden());
}

void TestSucheName::theColumnFillsWhileTheSearchRuns()
{
    oeffne(zaehltabelle(20));
    QElapsedTimer uhr;
    uhr.start();
    m_heim->beimProtokoll = [&uhr] { // a machine on which each hit takes its time
        for (const qint64 jetzt = uhr.elapsed(); uhr.elapsed() < jetzt + 15;) {
        }
    };
    QList<qsizetype> gemalt;
    bool anzeige = false;
    const Horcher spalte(controller().Tabelle->viewport(), QEvent::Paint,
                         [this, &gemalt] { gemalt << controller().suchArray.size(); });
    const Horcher laeuft(controller().suchfortschritt, QEvent::Paint, [this, &anzeige] {
        anzeige = controller().suchfortschritt->y() > controller().Tabelle->geometry().bottom();
    });
    controller().suchfeld->setStringValue(QStringLiteral("speise"));
    controller().suchen(*controller().suchfeld);
    QVERIFY2(gemalt.size() >= 3, qPrintable(QString::number(gemalt.size())));
    QVERIFY(std::is_sorted(gemalt.begin(), gemalt.end()));
    QVERIFY(gemalt.first() < 10);
    QVERIFY(anzeige); // the indicator is painted too, and in its place
}

QTEST_MAIN(TestSucheName)
#include "TestSucheName.moc"
