#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/// What a picture test does when its picture is as expected, another one, missing, or to be taken
/// anew.
class TestBilderrahmen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void thePictureThatIsExpectedPasses();
    void anotherOneFailsAndIsLeftToLookAt();
    void whatWasLeftGoesWhenItIsMended();
    void aPictureThatIsMissingFails();
    void takingItAnewFailsToo();
    void theDesktopChangesNothing();

private:
    /// Runs the test of this word, with these variables set; true when it passes.
    bool pruefe(const QString &wort, const QProcessEnvironment &dazu = {});
    bool erneuere(const QString &wort);
    QString pfad(const QString &name) const { return m_ordner->filePath(name); }
    QStringList uebrig() const { return QDir(pfad(u"unterschiede"_s)).entryList(QDir::Files); }

    std::unique_ptr<QTemporaryDir> m_ordner;
    QString m_worte; ///< what the latest run has said
};

void TestBilderrahmen::init()
{
    m_ordner = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_ordner->path()).mkdir(u"bilder"_s));
}

bool TestBilderrahmen::pruefe(const QString &wort, const QProcessEnvironment &dazu)
{
    QProcessEnvironment umgebung = QProcessEnvironment::systemEnvironment();
    umgebung.remove(u"MAHLBERG_BILDER_NEU"_s);
    umgebung.insert(dazu);
    QProcess prozess;
    prozess.setProcessEnvironment(umgebung);
    prozess.start(QStringLiteral(MAHLBERG_BILDERHELFER),
                  {wort, pfad(u"bilder"_s), pfad(u"unterschiede"_s)});
    prozess.waitForFinished(-1);
    m_worte = QString::fromUtf8(prozess.readAllStandardOutput());
    return prozess.exitStatus() == QProcess::NormalExit && prozess.exitCode() == 0;
}

bool TestBilderrahmen::erneuere(const QString &wort)
{
    QProcessEnvironment dazu;
    dazu.insert(u"MAHLBERG_BILDER_NEU"_s, u"1"_s);
    return pruefe(wort, dazu);
}

void TestBilderrahmen::thePictureThatIsExpectedPasses()
{
    erneuere(u"Eiweiß 12,5 g"_s);
    QVERIFY2(pruefe(u"Eiweiß 12,5 g"_s), qPrintable(m_worte));
    QCOMPARE(uebrig(), QStringList());
}

void TestBilderrahmen::anotherOneFailsAndIsLeftToLookAt()
{
    erneuere(u"Eiweiß 12,5 g"_s);
    QVERIFY(!pruefe(u"Eiweiß 12.5 g"_s));
    QCOMPARE(uebrig(), (QStringList{u"schild-erwartet.png"_s, u"schild-gesehen.png"_s,
                                    u"schild-unterschied.png"_s}));
    for (const QString &name : uebrig()) {
        const QString datei = pfad(u"unterschiede/"_s + name);
        QVERIFY2(m_worte.contains(datei), qPrintable(m_worte));
        QCOMPARE(QImage(datei).size(), QSize(200, 40));
    }
}

void TestBilderrahmen::whatWasLeftGoesWhenItIsMended()
{
    erneuere(u"Fett"_s);
    QVERIFY(!pruefe(u"Fell"_s));
    QVERIFY(pruefe(u"Fett"_s));
    QCOMPARE(uebrig(), QStringList());
}

void TestBilderrahmen::aPictureThatIsMissingFails()
{
    QVERIFY(!pruefe(u"Fett"_s));
    QCOMPARE(uebrig(), QStringList{u"schild-gesehen.png"_s});
    QVERIFY(m_worte.contains(pfad(u"unterschiede/schild-gesehen.png"_s)));
}

/// Nobody is to take a run that writes for one that compares.
void TestBilderrahmen::takingItAnewFailsToo()
{
    QVERIFY(!erneuere(u"Fett"_s));
    QVERIFY(m_worte.contains(u"MAHLBERG_BILDER_NEU"_s));
    QCOMPARE(QImage(pfad(u"bilder/schild.png"_s)).size(), QSize(200, 40));
    QVERIFY(!erneuere(u"Fell"_s));
    QVERIFY(pruefe(u"Fell"_s));
}

/// Whoever has large letters, another language or a screen with two pixels to a point sees the
/// same.
void TestBilderrahmen::theDesktopChangesNothing()
{
    erneuere(u"Eiweiß 12,5 g"_s);
    QProcessEnvironment dazu;
    dazu.insert(u"QT_SCALE_FACTOR"_s, u"2"_s);
    dazu.insert(u"QT_FONT_DPI"_s, u"144"_s);
    dazu.insert(u"QT_STYLE_OVERRIDE"_s, u"windows"_s);
    dazu.insert(u"LC_ALL"_s, u"fr_FR.UTF-8"_s);
    dazu.insert(u"FONTCONFIG_FILE"_s, u"/etc/fonts/fonts.conf"_s);
    QVERIFY2(pruefe(u"Eiweiß 12,5 g"_s, dazu), qPrintable(m_worte));
}

QTEST_MAIN(TestBilderrahmen)
#include "TestBilderrahmen.moc"
