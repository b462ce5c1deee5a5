// All measures of a food together: the user's own before the built-in ones.

#include "Auskunftsprobe.h"
#include "Massquelle.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QByteArray portionen = "group;name;except;de;de_many;en;en_many;grams;keys;note\n"
                             "Brot und Brötchen;;;Scheibe;Scheiben;slice;slices;20;DGP;\n"
                             "Brot und Brötchen;;;EL;EL;tbsp;tbsp;7;DGP;\n"
                             "Brot und Brötchen;;;ml;ml;ml;ml;1;DGP;\n";

const QString toast = u"Toast, hell"_s;

Mass mass(const QString &eines, const QString &viele, const QString &einesEn,
          const QString &vieleEn)
{
    return {eines, viele, einesEn, vieleEn, 99};
}

} // namespace

class TestMassquelle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void ownMeasuresComeFirstAndTakeThePlaceOfTheirNamesakes_data();
    void ownMeasuresComeFirstAndTakeThePlaceOfTheirNamesakes();
    void aFoodWithoutOwnMeasuresHasTheBuiltInOnes();
    void anOwnFoodHasOnlyItsOwn();
    void whatIsChangedIsSeenAtOnce();

private:
    void schreibe(const QString &name, const QByteArray &bytes) const;
    QStringList namen(const QString &schluessel) const
    {
        QStringList liste;
        for (const Mass &eines : Massquelle(*m_eingebaute, *m_eigene).masseFuer(schluessel)) {
            liste << u"%1 %2"_s.arg(eines.eines).arg(eines.gramm);
        }
        return liste;
    }

    std::unique_ptr<QTemporaryDir> m_ordner;
    std::unique_ptr<Portionentabelle> m_eingebaute;
    std::unique_ptr<EigeneMasse> m_eigene;
};

void TestMassquelle::init()
{
    m_ordner = std::make_unique<QTemporaryDir>();
    schreibe(u"P.csv"_s, portionen);
    schreibe(u"L.csv"_s, Auskunftsprobe::datei({Auskunftsprobe::zeile(toast, {})}));
    m_eingebaute = std::make_unique<Portionentabelle>(m_ordner->filePath(u"P.csv"_s),
                                                      m_ordner->filePath(u"L.csv"_s));
    m_eigene = std::make_unique<EigeneMasse>(m_ordner->filePath(u"M.json"_s));
}

void TestMassquelle::schreibe(const QString &name, const QByteArray &bytes) const
{
    QFile datei(m_ordner->filePath(name));
    QVERIFY(datei.open(QIODevice::WriteOnly));
    QCOMPARE(datei.write(bytes), bytes.size());
}

void TestMassquelle::ownMeasuresComeFirstAndTakeThePlaceOfTheirNamesakes_data()
{
    QTest::addColumn<Mass>("eigenes");
    QTest::addColumn<QStringList>("namen");
    QTest::newRow("another name") << mass(u"Kante"_s, u"Kanten"_s, u"heel"_s, u"heels"_s)
                                  << QStringList{u"Kante 99"_s, u"Scheibe 20"_s, u"EL 7"_s,
                                                 u"ml 1"_s};
    QTest::newRow("the same") << mass(u"Scheibe"_s, u"Scheiben"_s, u"slice"_s, u"slices"_s)
                              << QStringList{u"Scheibe 99"_s, u"EL 7"_s, u"ml 1"_s};
    QTest::newRow("in other capitals") << mass(u"scheibe"_s, u"x"_s, u"x"_s, u"x"_s)
                                       << QStringList{u"scheibe 99"_s, u"EL 7"_s, u"ml 1"_s};
    QTest::newRow("only several") << mass(u"x"_s, u"Scheiben"_s, u"x"_s, u"x"_s)
                                  << QStringList{u"x 99"_s, u"EL 7"_s, u"ml 1"_s};
    QTest::newRow("only in English") << mass(u"Kante"_s, u"Kanten"_s, u"slice"_s, u"heels"_s)
                                     << QStringList{u"Kante 99"_s, u"EL 7"_s, u"ml 1"_s};
    QTest::newRow("only several in English")
        << mass(u"Kante"_s, u"Kanten"_s, u"heel"_s, u"slices"_s)
        << QStringList{u"Kante 99"_s, u"EL 7"_s, u"ml 1"_s};
    QTest::newRow("the long name of a short one")
        << mass(u"Esslöffel"_s, u"Esslöffel"_s, u"x"_s, u"x"_s)
        << QStringList{u"Esslöffel 99"_s, u"Scheibe 20"_s, u"ml 1"_s};
    QTest::newRow("only the beginning")
        << mass(u"Sch"_s, u"Schs"_s, u"x"_s, u"x"_s)
        << QStringList{u"Sch 99"_s, u"Scheibe 20"_s, u"EL 7"_s, u"ml 1"_s};
    QTest::newRow("a liter is no milliliter")
        << mass(u"l"_s, u"l"_s, u"l"_s, u"l"_s)
        << QStringList{u"l 99"_s, u"Scheibe 20"_s, u"EL 7"_s, u"ml 1"_s};
}

void TestMassquelle::ownMeasuresComeFirstAndTakeThePlaceOfTheirNamesakes()
{
    QFETCH(const Mass, eigenes);
    QFETCH(const QStringList, namen);
    QVERIFY(m_eigene->setze(toast, {eigenes}));
    QCOMPARE(this->namen(toast), namen);
}

void TestMassquelle::aFoodWithoutOwnMeasuresHasTheBuiltInOnes()
{
    QVERIFY(m_eigene->setze(u"Suppe"_s, {mass(u"x"_s, u"x"_s, u"x"_s, u"x"_s)}));
    QCOMPARE(namen(toast), (QStringList{u"Scheibe 20"_s, u"EL 7"_s, u"ml 1"_s}));
    QVERIFY(namen({}).isEmpty());
}

void TestMassquelle::anOwnFoodHasOnlyItsOwn()
{
    QVERIFY(m_eigene->setze(
        u"Suppe"_s, {mass(u"x"_s, u"x"_s, u"x"_s, u"x"_s), mass(u"a"_s, u"a"_s, u"a"_s, u"a"_s)}));
    QCOMPARE(namen(u"Suppe"_s), (QStringList{u"x 99"_s, u"a 99"_s}));
}

void TestMassquelle::whatIsChangedIsSeenAtOnce()
{
    QCOMPARE(namen(toast).size(), 3);
    QVERIFY(m_eigene->setze(toast, {mass(u"x"_s, u"x"_s, u"x"_s, u"x"_s)}));
    QCOMPARE(namen(toast).size(), 4);
    QVERIFY(m_eigene->setze(toast, {}));
    QCOMPARE(namen(toast).size(), 3);
}

QTEST_APPLESS_MAIN(TestMassquelle)
#include "TestMassquelle.moc"
