// The publications that a page for people lists, and what names none of them.

#include "Beanstandungsworte.h"
#include "Quellenseite.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestQuellenseite : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePagesTableListsTheKeys_data();
    void thePagesTableListsTheKeys();
    void everyKeyThatIsNotListedIsObjectedTo();
};

void TestQuellenseite::thePagesTableListsTheKeys_data()
{
    QTest::addColumn<QString>("seite");
    QTest::addColumn<QStringList>("schluessel");
    const QString anfang = u"Text about | SGX | keys.\n\n| key | publication |\n|---|---|\n"_s;
    QTest::newRow("of values") << anfang + u"| DGE-TOOL | One |\n| EFSA-UL11 | Two |\n"_s
                               << QStringList{u"DGE-TOOL"_s, u"EFSA-UL11"_s};
    QTest::newRow("of measures")
        << anfang + u"| SGE | One |\n| DGE24-N | Two |\n| USDA-nnnnn | Three |\n"_s
        << QStringList{u"SGE"_s, u"DGE24-N"_s, u"USDA-nnnnn"_s};
    QTest::newRow("an empty page") << QString() << QStringList();
}

void TestQuellenseite::thePagesTableListsTheKeys()
{
    QFETCH(const QString, seite);
    QFETCH(const QStringList, schluessel);
    QCOMPARE(Quellenseite::schluessel(seite), schluessel);
}

void TestQuellenseite::everyKeyThatIsNotListedIsObjectedTo()
{
    const QStringList bekannte = {u"SGE"_s, u"USDA-nnnnn"_s};
    const auto pruefen = [&](const QStringList &quellen) {
        return inWorten(Quellenseite::pruefen(7, u"value"_s, quellen, bekannte));
    };
    QCOMPARE(pruefen({u"SGE"_s, u"USDA-01234"_s}), QStringList());
    QCOMPARE(pruefen({u"SGX"_s, u"SGE"_s, u"USDA-123"_s}),
             (QStringList{u"7: \"SGX\" is no publication of the page [key]"_s,
                          u"7: \"USDA-123\" is no publication of the page [key]"_s}));
    QCOMPARE(pruefen({}), QStringList{u"7: The value names no publication [key]"_s});
}

QTEST_APPLESS_MAIN(TestQuellenseite)
#include "TestQuellenseite.moc"
