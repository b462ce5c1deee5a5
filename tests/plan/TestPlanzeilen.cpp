#include "Planzeilen.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestPlanzeilen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsOfAPlan();
};

namespace {

Datenmodul speise(const QString &name, float kal)
{
    Datenmodul neu;
    neu.setName(name);
    neu.setkal(kal);
    return neu;
}

} // namespace

/// A name that both stores have means the built-in food.
void TestPlanzeilen::rowsOfAPlan()
{
    const Lebensmittelverzeichnis eingebaute = {{u"Brot"_s, speise(u"Brot"_s, 1)},
                                                {u"Ei"_s, speise(u"Ei"_s, 2)}};
    const Lebensmittelverzeichnis eigene = {{u"Brei"_s, speise(u"Brei"_s, 3)},
                                            {u"Ei"_s, speise(u"Ei"_s, 4)}};
    Planliste plan;
    for (const QString &name : {u"Ei"_s, u"Weg"_s, u"Brei"_s, u"ei"_s}) {
        plan.anhaengen(name);
    }
    plan.mengeAendern(2, 12.5F);
    const std::vector<Planzeile> zeilen = planzeilen(plan, eingebaute, eigene);
    QCOMPARE(zeilen.size(), std::size_t(4));
    QCOMPARE(zeilen[0].lebensmittel, &*eingebaute.constFind(u"Ei"_s));
    QCOMPARE(zeilen[0].menge, 100.0F);
    QVERIFY(zeilen[1].lebensmittel == nullptr);
    QCOMPARE(zeilen[1].menge, 100.0F);
    QCOMPARE(zeilen[2].lebensmittel, &*eigene.constFind(u"Brei"_s));
    QCOMPARE(zeilen[2].menge, 12.5F);
    QVERIFY(zeilen[3].lebensmittel == nullptr); // upper and lower case are told apart
    QVERIFY(planzeilen(Planliste(), eingebaute, eigene).empty());
}

QTEST_GUILESS_MAIN(TestPlanzeilen)
#include "TestPlanzeilen.moc"
