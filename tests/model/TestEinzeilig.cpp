#include "Einzeilig.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestEinzeilig : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneLine_data();
    void oneLine();
};

void TestEinzeilig::oneLine_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("erwartet");
    QTest::newRow("usual text") << u"Äpfel, roh"_s << u"Äpfel, roh"_s;
    QTest::newRow("none") << QString() << QString();
    QTest::newRow("a line break") << u"a\nb"_s << u"a\\x0ab"_s;
    QTest::newRow("colours of a terminal") << u"\x1b[31mrot"_s << u"\\x1b[31mrot"_s;
    QTest::newRow("a control character of eight bits") << QString(QChar(0x9b)) << u"\\x9b"_s;
}

void TestEinzeilig::oneLine()
{
    QFETCH(QString, text);
    QFETCH(QString, erwartet);
    QCOMPARE(einzeilig(text), erwartet);
}

QTEST_GUILESS_MAIN(TestEinzeilig)
#include "TestEinzeilig.moc"
