// The list of clients: its order, and what is found as one types.

#include "Klientenliste.h"

#include <QLocale>
#include <QTest>

namespace {

Personenzeile zeile(const QString &name, const QString &nummer = {}, bool archiviert = false)
{
    return {QStringLiteral("kennung ") + name + nummer, name, nummer, {}, archiviert};
}

QStringList namen(const QList<Personenzeile> &zeilen)
{
    QStringList alle;
    for (const Personenzeile &person : zeilen) {
        alle << person.name;
    }
    return alle;
}

} // namespace

class TestKlientenliste : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QStringLiteral("de_DE"))); }

    void aTextHasOneForm_data();
    void aTextHasOneForm();
    void whatIsFound_data();
    void whatIsFound();
    void theOrderIsThatOfTheLanguage();
    void thoseOfOneNameStandByNumber();
    void archivedOnesAreAskedFor();
    void aChangedNameMovesToItsPlace();
};

void TestKlientenliste::aTextHasOneForm_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("form");
    const std::array<const char *, 2> zeilen[] = {
        {"Müller", "mueller"}, {"MÜLLER", "mueller"}, {"Mu\u0308ller", "mueller"},
        {"Groß", "gross"},     {"GROẞ", "gross"},     {"Åse Øre", "aase oere"},
        {"Éloïse", "eloise"},  {"Šárka", "sarka"},    {"  a \t b  ", "a b"},
        {"ﬁn", "fin"},         {"Ｆ１", "f1"},        {"", ""},
        {"İpek", "ipek"},      {"Ωmega", "ωmega"},    {"Cæsar", "caesar"},
    };
    for (const auto &[text, form] : zeilen) {
        QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(form);
    }
}

void TestKlientenliste::aTextHasOneForm()
{
    QFETCH(const QString, text);
    QTEST(suchform(text), "form");
}

void TestKlientenliste::whatIsFound_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("treffer");
    const QString anna = QStringLiteral("Anna Müller");
    const QString bert = QStringLiteral("Bert Mueller");
    const QString carl = QStringLiteral("Carl Weiß");
    const auto findet = [](const char *name, const char *text, const QStringList &treffer) {
        QTest::newRow(name) << QString::fromUtf8(text) << treffer;
    };
    findet("nothing typed finds all", "", {anna, bert, carl});
    findet("a blank finds all", " ", {anna, bert, carl});
    findet("umlauts find what is written without", "mül", {anna, bert});
    findet("and the other way round", "MUEL", {anna, bert});
    findet("the middle of a word", "elle", {anna, bert});
    findet("words in any order", "mü an", {anna});
    findet("a number", "0/2", {bert});
    findet("name and number", "b 2", {bert});
    findet("sharp s", "weiss", {carl});
    findet("a word that nobody has", "müllerin", {});
    findet("a percent sign is no wildcard", "%", {});
    findet("a full stop is none either", "m.l", {});
}

void TestKlientenliste::whatIsFound()
{
    QFETCH(const QString, text);
    Klientenliste liste;
    liste.setze({zeile(QStringLiteral("Carl Weiß"), QStringLiteral("9")),
                 zeile(QStringLiteral("Bert Mueller"), QStringLiteral("0/2")),
                 zeile(QStringLiteral("Anna Müller"), QStringLiteral("17"))});
    QTEST(namen(liste.suche(text, false)), "treffer");
}

void TestKlientenliste::theOrderIsThatOfTheLanguage()
{
    Klientenliste liste;
    liste.setze({zeile(QStringLiteral("Zoe")), zeile(QStringLiteral("Ärmel")),
                 zeile(QStringLiteral("bea")), zeile(QStringLiteral("Arm")),
                 zeile(QStringLiteral("Bea 10")), zeile(QStringLiteral("Bea 9"))});
    QCOMPARE(
        namen(liste.suche({}, false)),
        (QStringList{QStringLiteral("Arm"), QStringLiteral("Ärmel"), QStringLiteral("bea"),
                     QStringLiteral("Bea 9"), QStringLiteral("Bea 10"), QStringLiteral("Zoe")}));
}

void TestKlientenliste::thoseOfOneNameStandByNumber()
{
    Klientenliste liste;
    liste.setze({zeile(QStringLiteral("Eva"), QStringLiteral("10")),
                 zeile(QStringLiteral("Eva"), QStringLiteral("9")),
                 zeile(QStringLiteral("Eva"), QString())});
    const QList<Personenzeile> alle = liste.suche({}, false);
    QCOMPARE(alle.at(0).nummer, QString());
    QCOMPARE(alle.at(1).nummer, QStringLiteral("9"));
    QCOMPARE(alle.at(2).nummer, QStringLiteral("10"));
}

void TestKlientenliste::archivedOnesAreAskedFor()
{
    Klientenliste liste;
    liste.setze({zeile(QStringLiteral("Anna")), zeile(QStringLiteral("Bea"), {}, true)});
    QCOMPARE(namen(liste.suche({}, false)), QStringList{QStringLiteral("Anna")});
    QCOMPARE(namen(liste.suche({}, true)),
             (QStringList{QStringLiteral("Anna"), QStringLiteral("Bea")}));
    QCOMPARE(liste.anzahl(), 2);
}

void TestKlientenliste::aChangedNameMovesToItsPlace()
{
    Klientenliste liste;
    Personenzeile anna = zeile(QStringLiteral("Anna"));
    liste.setze({anna, zeile(QStringLiteral("Bea"))});
    anna.name = QStringLiteral("Zara");
    liste.setze(anna);
    QCOMPARE(namen(liste.suche({}, false)),
             (QStringList{QStringLiteral("Bea"), QStringLiteral("Zara")}));
    liste.setze(zeile(QStringLiteral("Carla")));
    liste.entferne(anna.kennung);
    QCOMPARE(namen(liste.suche({}, false)),
             (QStringList{QStringLiteral("Bea"), QStringLiteral("Carla")}));
    QCOMPARE(namen(liste.suche(QStringLiteral("carl"), false)),
             QStringList{QStringLiteral("Carla")});
}

QTEST_APPLESS_MAIN(TestKlientenliste)
#include "TestKlientenliste.moc"
