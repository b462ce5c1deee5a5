#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/// The check of the protections that a shipped program has against its own mistakes.
class TestHaertung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyMissingProtectionIsNamed_data();
    void everyMissingProtectionIsNamed();
    void aFileThatIsNoProgramFails();
};

namespace {

/// A program with a buffer to guard and a call to check.
const QByteArray quelle = "#include <cstdio>\n"
                          "#include <cstring>\n"
                          "int main(int zahl, char **worte)\n"
                          "{\n"
                          "    char puffer[16];\n"
                          "    std::strcpy(puffer, worte[zahl - 1]);\n"
                          "    return std::puts(puffer);\n"
                          "}\n";

/// Flags that ask for all protections; a later one of a row takes one of them back.
const QStringList alle = {u"-O2"_s,
                          u"-fPIC"_s,
                          u"-fstack-protector-strong"_s,
                          u"-U_FORTIFY_SOURCE"_s,
                          u"-D_FORTIFY_SOURCE=2"_s,
                          u"-pie"_s,
                          u"-Wl,-z,relro"_s,
                          u"-Wl,-z,now"_s};

struct Lauf
{
    int ausgang;
    QString fehler;
};

Lauf starte(const QString &programm, const QStringList &argumente)
{
    QProcess prozess;
    prozess.start(programm, argumente);
    prozess.waitForFinished();
    return {prozess.exitStatus() == QProcess::NormalExit ? prozess.exitCode() : -1,
            QString::fromUtf8(prozess.readAllStandardError())};
}

} // namespace

void TestHaertung::everyMissingProtectionIsNamed_data()
{
    QTest::addColumn<QStringList>("zusatz");
    QTest::addColumn<QString>("fehlt"); // empty: nothing
    QTest::newRow("all are there") << QStringList() << QString();
    QTest::newRow("at a fixed place") << QStringList{u"-no-pie"_s} << u"-pie"_s;
    QTest::newRow("tables that can be written")
        << QStringList{u"-Wl,-z,norelro"_s} << u"-z relro"_s;
    QTest::newRow("calls bound late") << QStringList{u"-Wl,-z,lazy"_s} << u"-z now"_s;
    QTest::newRow("no guard on the stack")
        << QStringList{u"-fno-stack-protector"_s} << u"-fstack-protector-strong"_s;
    QTest::newRow("calls that are not checked")
        << QStringList{u"-U_FORTIFY_SOURCE"_s} << u"-D_FORTIFY_SOURCE=2"_s;
    QTest::newRow("calls that can't be checked without optimising")
        << QStringList{u"-O0"_s, u"-Wno-cpp"_s} << u"-D_FORTIFY_SOURCE=2"_s;
}

void TestHaertung::everyMissingProtectionIsNamed()
{
    QFETCH(QStringList, zusatz);
    QFETCH(QString, fehlt);
    const QTemporaryDir ordner;
    QFile datei(ordner.filePath(u"probe.cpp"_s));
    QVERIFY(datei.open(QIODevice::WriteOnly));
    QCOMPARE(datei.write(quelle), quelle.size());
    datei.close();
    const QString programm = ordner.filePath(u"probe"_s);
    const Lauf bau = starte(QStringLiteral(UEBERSETZER),
                            alle + zusatz + QStringList{u"-o"_s, programm, datei.fileName()});
    QVERIFY2(bau.ausgang == 0, qPrintable(bau.fehler));

    const Lauf pruefung = starte(QStringLiteral(PRUEFUNG), {programm});
    QCOMPARE(pruefung.ausgang, fehlt.isEmpty() ? 0 : 1);
    QCOMPARE(pruefung.fehler.count(u'\n'), fehlt.isEmpty() ? 0 : 1);
    QVERIFY2(pruefung.fehler.contains(fehlt), qPrintable(pruefung.fehler));
}

void TestHaertung::aFileThatIsNoProgramFails()
{
    QVERIFY(starte(QStringLiteral(PRUEFUNG), {QStringLiteral(PRUEFUNG)}).ausgang != 0);
    QVERIFY(starte(QStringLiteral(PRUEFUNG), {u"/nowhere"_s}).ausgang != 0);
    QVERIFY(starte(QStringLiteral(PRUEFUNG), {}).ausgang != 0);
}

QTEST_GUILESS_MAIN(TestHaertung)
#include "TestHaertung.moc"
