// What a day comes to at a glance: the counted ratings, and how they stand beside the meals.

#include "Aufzeichnungsprobe.h"
#include "Tagesbilder.h"

#include <QFont>
#include <QGridLayout>
#include <QLabel>
#include <QTest>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using Aufzeichnungsprobe::zeile;

class TestTagesbilder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_fenster.reset(); }

    void ratingsOfDayAndMeanAreCounted();
    void whatHasNoDaysHasNoCounts();
    void theLeadingCountIsBold_data();
    void theLeadingCountIsBold();
    void everyCountIsReadOut();
    void theMealsAreShown();
    void besideOneAnotherWhereThereIsRoom();
    void moreMealsMakeItHigher();

private:
    static Mahlzeitzeile bewertet(const QString &urteile)
    {
        Mahlzeitzeile eine = zeile(u"Ding"_s, 100);
        for (int i = 0; i < urteile.size(); ++i) {
            eine.eintrag->setWertung(static_cast<Wertung>(i), urteile.mid(i, 1));
        }
        return eine;
    }
    void zeige(int tag)
    {
        m_bilder->zeige(m_eine, tag, rechneTag(m_eine, tag, {}), rechneMittel(m_eine, {}));
    }
    QString worte(Wertung wertung, bool mittel) const
    {
        return m_bilder->wertungszahlen->worte(wertung, mittel);
    }
    /// The counts of a rating as they stand there, "*" behind a bold one.
    QStringList zahlen(Wertung wertung) const
    {
        QStringList alle;
        const auto *gitter = qobject_cast<QGridLayout *>(m_bilder->wertungszahlen->layout());
        for (int spalte = 1; spalte < gitter->columnCount(); ++spalte) {
            const QLayoutItem *teil =
                gitter->itemAtPosition(2 + static_cast<int>(stelle(wertung)), spalte);
            if (teil != nullptr) {
                const auto *feld = qobject_cast<QLabel *>(teil->widget());
                alle << feld->text() + (feld->font().bold() ? u"*"_s : QString());
            }
        }
        return alle;
    }

    std::unique_ptr<QWidget> m_fenster;
    Tagesbilder *m_bilder = nullptr;
    Aufzeichnung m_eine;
};

void TestTagesbilder::init()
{
    m_eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 3);
    m_fenster = std::make_unique<QWidget>();
    m_bilder = new Tagesbilder;
    auto *aufbau = new QVBoxLayout(m_fenster.get());
    aufbau->addWidget(m_bilder);
    aufbau->addStretch(1);
}

/// On the first day three foods, on the second two; of the mean all rows of both, meal by meal: for
/// diabetes +, 0, -, 0 and +, so that the second 0 was the last to lead.
void TestTagesbilder::ratingsOfDayAndMeanAreCounted()
{
    m_eine.tage[0].mahlzeiten[0].zeilen = {bewertet(u"++0-"_s), bewertet(u"+0-?"_s)};
    m_eine.tage[0].mahlzeiten[4].zeilen = {bewertet(u"-+0 "_s)};
    m_eine.tage[1].mahlzeiten[2].zeilen = {bewertet(u"+--+"_s), bewertet(u"00-+"_s)};
    zeige(0);
    QCOMPARE(zahlen(Wertung::uebergewicht).join(u' '), u"2* 0 1 3* 1 1"_s);
    QCOMPARE(zahlen(Wertung::diabetes).join(u' '), u"2* 1 0 2 2* 1"_s);
    QCOMPARE(zahlen(Wertung::gicht).join(u' '), u"0 2* 1 0 2 3*"_s);
    QCOMPARE(zahlen(Wertung::hkk).join(u' '), u"0 0 1* 2* 0 1"_s);
    m_eine.tage[1].imMittel = false;
    zeige(1);
    QCOMPARE(zahlen(Wertung::uebergewicht).join(u' '), u"1* 1 0 2* 0 1"_s);
}

void TestTagesbilder::whatHasNoDaysHasNoCounts()
{
    m_eine.tage[1].mahlzeiten[0].zeilen = {bewertet(u"++++"_s)};
    zeige(0);
    QCOMPARE(zahlen(Wertung::gicht).join(u'|'), u"|||1*|0|0"_s);
    QVERIFY(worte(Wertung::gicht, false).isNull());
    m_eine.tage[1].mahlzeiten[0].zeilen.clear();
    zeige(1);
    QCOMPARE(zahlen(Wertung::gicht).join(u'|'), u"|||||"_s);
    QVERIFY(worte(Wertung::gicht, true).isNull());
}

void TestTagesbilder::theLeadingCountIsBold_data()
{
    QTest::addColumn<QStringList>("urteile");
    QTest::addColumn<QString>("erwartet");
    QTest::newRow("suitable") << QStringList{u"+"_s} << u"1* 0 0"_s;
    QTest::newRow("neutral") << QStringList{u"0"_s} << u"0 1* 0"_s;
    QTest::newRow("unsuitable") << QStringList{u"-"_s} << u"0 0 1*"_s;
    QTest::newRow("a tie leaves the one before, as in a plan")
        << QStringList{u"-"_s, u"+"_s} << u"1 0 1*"_s;
    QTest::newRow("none is rated") << QStringList{u""_s} << u"0 0 0"_s;
}

void TestTagesbilder::theLeadingCountIsBold()
{
    QFETCH(QStringList, urteile);
    m_eine.tage[0].mahlzeiten[0].zeilen = {bewertet(u"0"_s)};
    zeige(0); // nothing of it may stay
    m_eine.tage[0].mahlzeiten[0].zeilen.clear();
    for (const QString &eines : urteile) {
        m_eine.tage[0].mahlzeiten[0].zeilen << bewertet(eines);
    }
    zeige(0);
    QTEST(zahlen(Wertung::uebergewicht).mid(0, 3).join(u' '), "erwartet");
}

void TestTagesbilder::everyCountIsReadOut()
{
    m_eine.tage[0].mahlzeiten[0].zeilen = {bewertet(u"++0-"_s), bewertet(u"+0-?"_s)};
    m_eine.tage[1].mahlzeiten[0].zeilen = {bewertet(u"-000"_s)};
    zeige(0);
    QCOMPARE(worte(Wertung::uebergewicht, false),
             u"Übergewicht, Tag: 2 geeignet, 0 neutral, 0 ungeeignet"_s);
    QCOMPARE(worte(Wertung::uebergewicht, true),
             u"Übergewicht, Mittel: 2 geeignet, 0 neutral, 1 ungeeignet"_s);
    QStringList gelesen;
    QStringList gezeigt;
    for (const QLabel *feld : m_bilder->wertungszahlen->findChildren<QLabel *>()) {
        gelesen << feld->accessibleName();
        gezeigt << feld->text();
    }
    QCOMPARE(gelesen.count(worte(Wertung::uebergewicht, true)), 3);
    QCOMPARE(gelesen.count(u"geeignet"_s), 2); // the heads of the columns
    for (const QString &wort : {u"+"_s, u"−"_s}) {
        QCOMPARE(gezeigt.count(wort), 2);
    }
    for (const QString &wort : {u"Tag"_s, u"Mittel"_s, u"Übergewicht"_s, u"Diabetes"_s, u"Gicht"_s,
                                u"Herz und Kreislauf"_s}) {
        QCOMPARE(gezeigt.count(wort), 1);
    }
}

void TestTagesbilder::theMealsAreShown()
{
    m_eine.tage[0].mahlzeiten[2].zeilen = {zeile(u"Reis"_s, 200, 130)};
    zeige(0);
    QCOMPARE(m_bilder->mahlzeiten->anteile().size(), 6);
    QCOMPARE(m_bilder->mahlzeiten->anteile()[2].energie, 260.0);
    QCOMPARE(m_bilder->mahlzeiten->anteile()[2].mittel, 260.0);
    zeige(1);
    QVERIFY(!m_bilder->mahlzeiten->anteile()[2].energie);
}

void TestTagesbilder::besideOneAnotherWhereThereIsRoom()
{
    m_eine.tage[0].mahlzeiten[0].zeilen = {bewertet(u"++0-"_s)};
    zeige(0);
    m_fenster->show();
    const int knapp = m_bilder->mahlzeiten->minimumSizeHint().width() +
                      m_bilder->wertungszahlen->minimumSizeHint().width();
    const auto stelle = [this](int breite) {
        const int rand = m_fenster->width() - m_bilder->width();
        m_fenster->resize(breite + rand, 600);
        QVERIFY(QTest::qWaitFor([this, breite] { return m_bilder->width() == breite; }));
    };
    stelle(knapp + 100);
    const QRect bild = m_bilder->mahlzeiten->geometry();
    const QRect zahlen = m_bilder->wertungszahlen->geometry();
    QCOMPARE(zahlen.top(), bild.top());
    QVERIFY(zahlen.left() > bild.right() + 8);
    QCOMPARE(zahlen.right(), m_bilder->width() - 1);
    QCOMPARE(m_bilder->height(), std::max(bild.height(), zahlen.height()));
    stelle(knapp);
    QVERIFY(m_bilder->wertungszahlen->y() > m_bilder->mahlzeiten->geometry().bottom());
    QCOMPARE(m_bilder->mahlzeiten->width(), knapp);
    QTRY_VERIFY(m_bilder->height() >= m_bilder->wertungszahlen->geometry().bottom() + 1);
    QVERIFY(m_bilder->minimumSizeHint().width() < knapp);
}

void TestTagesbilder::moreMealsMakeItHigher()
{
    m_fenster->resize(800, 600);
    m_fenster->show();
    zeige(0);
    QVERIFY(QTest::qWaitForWindowExposed(m_fenster.get()));
    const int vorher = m_bilder->height();
    while (m_eine.mahlzeiten.size() < meisteMahlzeiten) {
        m_eine.mahlzeiten << u"Imbiss"_s;
        for (Tag &tag : m_eine.tage) {
            tag.mahlzeiten << Mahlzeit();
        }
    }
    zeige(0);
    const int zeilenhoehe = m_bilder->mahlzeiten->fontMetrics().height();
    QTRY_COMPARE(m_bilder->height(), (meisteMahlzeiten + 1) * zeilenhoehe);
    QVERIFY(m_bilder->height() > vorher);
    QCOMPARE(m_bilder->mahlzeiten->height(), m_bilder->height());
    m_bilder->mahlzeiten->zeige({});
    QTRY_COMPARE(m_bilder->height(), m_bilder->wertungszahlen->height());
}

QTEST_MAIN(TestTagesbilder)
#include "TestTagesbilder.moc"
