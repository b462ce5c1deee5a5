// A record is printed from the menu of its window.

#include "Druckprobe.h"
#include "Fensterprobe.h"
#include "Handzettelfenster.h"
#include "Probesprache.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

class TestTagefensterDruck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theHandoutIsPrintedAfterAQuestion();
    void theHandoutBecomesAPdf();
    void onlyTheShownDayIsTheOneThatIsShown();
    void theLastChoiceIsOfferedAgain();
    void theFileFormIsPrintedAtOnce();
    void theFileFormBecomesAPdf();
    void whatIsBeingTypedIsPrintedToo();
    void whoseRecordItIsStandsOnIt();
    void aLogoThatIsGoneIsTold();
    void withoutARecordNothingIsPrinted();
    void withoutDoorsNothingHappens();

private:
    void baue(const Tagetueren &tueren);
    void waehle(const QString &eintrag) const;
    Handzettelfenster *frage() const { return m_fenster->findChild<Handzettelfenster *>(); }
    void druecke(const char *knopf) const
    {
        QTest::mouseClick(frage()->findChild<QPushButton *>(QLatin1String(knopf)), Qt::LeftButton);
    }
    /// What the last print says.
    QString gedruckt() const;

    std::unique_ptr<Probesprache> m_sprache;
    std::unique_ptr<QTemporaryDir> m_ordner;
    std::unique_ptr<QSettings> m_einstellungen;
    std::unique_ptr<Fensterprobe> m_probe;
    std::unique_ptr<Tagefenster> m_fenster;
    Tagetueren m_tueren;
    QList<Druckauftrag> m_gedruckte;
    QList<Druckauftrag> m_pdfs;
    QWidget *m_worueber = nullptr;
};

void TestTagefensterDruck::init()
{
    m_sprache.reset();
    m_sprache = std::make_unique<Probesprache>(QLocale::German);
    m_ordner = std::make_unique<QTemporaryDir>();
    m_einstellungen =
        std::make_unique<QSettings>(m_ordner->filePath(u"e.ini"_s), QSettings::IniFormat);
    m_probe = std::make_unique<Fensterprobe>();
    m_gedruckte.clear();
    m_pdfs.clear();
    m_tueren = m_probe->tueren();
    m_tueren.drucke = [this](QWidget *fenster, const Druckauftrag &auftrag) {
        m_worueber = fenster;
        m_gedruckte << auftrag;
    };
    m_tueren.alsPdf = [this](QWidget *fenster, const Druckauftrag &auftrag, const auto &) {
        m_worueber = fenster;
        m_pdfs << auftrag;
    };
    m_tueren.einstellungen = m_einstellungen.get();
    Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, QDate(2026, 11, 23), 2);
    eine.kennung = u"k"_s;
    Mahlzeitzeile toast = Aufzeichnungsprobe::zeile(u"Toast"_s, 40);
    toast.angabe = u"2 Scheiben"_s;
    eine.tage[0].mahlzeiten[0].zeilen = {toast};
    eine.tage[1].mahlzeiten[0].zeilen = {Aufzeichnungsprobe::zeile(u"Apfel"_s, 150)};
    m_probe->ablage.aufzeichnungen = {eine};
}

void TestTagefensterDruck::cleanup()
{
    m_fenster.reset();
    m_probe.reset();
}

void TestTagefensterDruck::baue(const Tagetueren &tueren)
{
    m_fenster = std::make_unique<Tagefenster>(m_probe->ablage, tueren);
    m_fenster->resize(1200, 700);
    m_fenster->zeige();
    QVERIFY(QTest::qWaitForWindowActive(m_fenster.get()));
}

void TestTagefensterDruck::waehle(const QString &eintrag) const
{
    for (QAction *einer : m_fenster->findChildren<QAction *>()) {
        if (einer->text().remove(u'&') == eintrag) {
            einer->trigger();
            return;
        }
    }
    QFAIL(qPrintable(eintrag));
}

QString TestTagefensterDruck::gedruckt() const
{
    Druckprobe probe(Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait));
    probe.drucke(m_pdfs.isEmpty() ? m_gedruckte.last() : m_pdfs.last());
    return probe.zeilen(1).join(u'\n').replace(QChar(QChar::Nbsp), u' ');
}

void TestTagefensterDruck::theHandoutIsPrintedAfterAQuestion()
{
    baue(m_tueren);
    QTest::keyClick(m_fenster.get(), Qt::Key_P, Qt::ControlModifier);
    QVERIFY(frage() != nullptr && m_gedruckte.isEmpty());
    QVERIFY(frage()->findChild<QPushButton *>(u"drucken"_s)->isDefault());
    druecke("drucken");
    QCOMPARE(m_gedruckte.size(), 1);
    QVERIFY(m_pdfs.isEmpty());
    QCOMPARE(m_worueber, m_fenster.get());
    const QString alles = gedruckt();
    QVERIFY2(alles.contains(u"Frühstück Toast – 2 Scheiben (40 g)"_s), qPrintable(alles));
    QVERIFY(alles.contains(u"Apfel – 150 g"_s));
    QVERIFY(!alles.contains(u"kcal"_s));
    QTRY_VERIFY(frage() == nullptr);
}

void TestTagefensterDruck::theHandoutBecomesAPdf()
{
    baue(m_tueren);
    waehle(u"Handzettel als PDF …"_s);
    QVERIFY(frage()->findChild<QPushButton *>(u"alspdf"_s)->isDefault());
    druecke("alspdf");
    QVERIFY(m_gedruckte.isEmpty());
    QCOMPARE(m_pdfs.size(), 1);
    QCOMPARE(m_pdfs[0].form, u"Handzettel"_s);
    QCOMPARE(m_pdfs[0].tag, QDate(2026, 11, 23));
    QCOMPARE(m_worueber, m_fenster.get());
}

void TestTagefensterDruck::onlyTheShownDayIsTheOneThatIsShown()
{
    baue(m_tueren);
    m_fenster->naechsterTag();
    waehle(u"Handzettel drucken …"_s);
    for (auto *einer : frage()->findChildren<QRadioButton *>()) {
        if (einer->text().contains(u"gezeigte"_s)) {
            QVERIFY2(einer->text().contains(u"24.11."_s), qPrintable(einer->text()));
            einer->click();
        }
    }
    druecke("drucken");
    const QString alles = gedruckt();
    QVERIFY(alles.contains(u"Apfel"_s));
    QVERIFY(!alles.contains(u"Toast"_s));
}

void TestTagefensterDruck::theLastChoiceIsOfferedAgain()
{
    baue(m_tueren);
    waehle(u"Handzettel drucken …"_s);
    for (auto *einer : frage()->findChildren<QRadioButton *>()) {
        if (einer->text().remove(u'&') == u"English"_s) {
            einer->click();
        }
    }
    druecke("drucken");
    QCOMPARE(m_gedruckte[0].form, u"Handout"_s);
    QTRY_VERIFY(frage() == nullptr);
    waehle(u"Handzettel drucken …"_s);
    QCOMPARE(frage()->wunsch(), (Handzettelwunsch{.sprache = Regelsprache::Englisch}));
    frage()->reject();
    QCOMPARE(m_gedruckte.size(), 1);
}

void TestTagefensterDruck::theFileFormIsPrintedAtOnce()
{
    m_probe->bedarf = {2000, 2000};
    baue(m_tueren);
    waehle(u"Aktenform drucken …"_s);
    QVERIFY(frage() == nullptr);
    QCOMPARE(m_gedruckte.size(), 1);
    const QString alles = gedruckt();
    QVERIFY(alles.contains(u"100 % der Energie = 2000 kcal am Tag"_s));
    // 100 kcal in 100 g: (40 + 150) / 2 = 95 kcal on a day.
    QVERIFY2(alles.contains(u"Gesamt 95 "_s), qPrintable(alles));
}

void TestTagefensterDruck::theFileFormBecomesAPdf()
{
    baue(m_tueren);
    waehle(u"Aktenform als PDF …"_s);
    QVERIFY(m_gedruckte.isEmpty());
    QCOMPARE(m_pdfs.size(), 1);
    QCOMPARE(m_pdfs[0].form, u"Aktenform"_s);
}

void TestTagefensterDruck::whatIsBeingTypedIsPrintedToo()
{
    baue(m_tueren);
    m_fenster->ansicht->geheZu({Tagesmodell::Art::Speise, 0, 0}, Tagesmodell::Angabe);
    m_fenster->ansicht->setFocus();
    Fensterprobe::tippe(u"75"_s);
    waehle(u"Handzettel drucken …"_s);
    druecke("drucken");
    const QString alles = gedruckt();
    QVERIFY2(alles.contains(u"Toast – 75 g"_s), qPrintable(alles));
}

void TestTagefensterDruck::whoseRecordItIsStandsOnIt()
{
    m_tueren.klient = [] {
        return u"Anna Muster"_s;
    };
    m_tueren.briefkopf = [] {
        return Briefkopf{u"Praxis am Tor"_s, {}, {}};
    };
    baue(m_tueren);
    waehle(u"Handzettel drucken …"_s);
    druecke("drucken");
    QVERIFY(gedruckt().startsWith(u"Praxis am Tor\nProtokoll\nFür Anna Muster, "_s));
    waehle(u"Aktenform drucken …"_s);
    QVERIFY(gedruckt().startsWith(u"Protokoll\nKlient Anna Muster\n"_s));
}

void TestTagefensterDruck::aLogoThatIsGoneIsTold()
{
    m_tueren.briefkopf = [] {
        return Briefkopf{{}, {}, {}, true};
    };
    baue(m_tueren);
    waehle(u"Handzettel drucken …"_s);
    QVERIFY(frage()->findChild<QLabel *>(u"hinweis"_s) != nullptr);
    druecke("drucken");
    QCOMPARE(m_gedruckte.size(), 1);
}

void TestTagefensterDruck::withoutARecordNothingIsPrinted()
{
    m_probe->ablage.aufzeichnungen.clear();
    baue(m_tueren);
    for (const QString &eintrag : {u"Handzettel drucken …"_s, u"Handzettel als PDF …"_s,
                                   u"Aktenform drucken …"_s, u"Aktenform als PDF …"_s}) {
        waehle(eintrag);
        QVERIFY(frage() == nullptr);
    }
    QVERIFY(m_gedruckte.isEmpty() && m_pdfs.isEmpty());
}

void TestTagefensterDruck::withoutDoorsNothingHappens()
{
    baue(m_probe->tueren());
    waehle(u"Handzettel drucken …"_s);
    druecke("drucken");
    waehle(u"Aktenform als PDF …"_s);
    QVERIFY(m_gedruckte.isEmpty() && m_pdfs.isEmpty());
}

QTEST_MAIN(TestTagefensterDruck)
#include "TestTagefensterDruck.moc"
