#include "Archivbau.h"
#include "Archivdatei.h"
#include "Probefenster.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

using Archivbau::Folge;
using namespace Qt::StringLiterals;

/// Own foods and plan in the data folder that another kind of machine has written: they are read as
/// they are, and the first change writes them as this one does and keeps what was there.
class TestAlteDateien : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void bothAreReadAsTheyAre_data();
    void bothAreReadAsTheyAre();
    void ownFoodsAreKeptAtTheFirstChange_data() { bothAreReadAsTheyAre_data(); }
    void ownFoodsAreKeptAtTheFirstChange();
    void thePlanIsKeptAtTheFirstChange_data() { bothAreReadAsTheyAre_data(); }
    void thePlanIsKeptAtTheFirstChange();

private:
    void lege(Folge folge);
    QString plandatei() const
    {
        return QFileInfo(m_heim->eigeneDatei()).dir().filePath(u"MahlbergPlanmod.daten"_s);
    }
    static QByteArray bytes(const QString &pfad);
    /// What the copies beside a file hold.
    QList<QByteArray> aufgehobenes(const QString &name) const;

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

/// A plan of one row, 62.5 g of "Ei", as such a machine writes it.
QByteArray plan(Folge folge)
{
    return Archivbau::datei(Archivbau::verzeichnisAnfang + "01 " + Archivbau::ersterText +
                                "02 'Ei' 86 " + Archivbau::erstesLebensmittel +
                                "92 96 84 01 'f' 83 f:62.5 " + QByteArray("9A 00 ").repeated(16) +
                                Archivbau::keineWertungen + "86 86",
                            folge);
}

/// What was written today is not kept a second time.
const QDateTime damals(QDate(2009, 5, 14), QTime(17, 30));

const QByteArray anfangHeute = QByteArray("\x04\x0Bstreamtyped\x81\xE8\x03", 16);
const QByteArray anfangDamals = QByteArray("\x04\x0Btypedstream\x81\x03\xE8", 16);

} // namespace

void TestAlteDateien::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(zaehltabelle(5));
}

void TestAlteDateien::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestAlteDateien::lege(Folge folge)
{
    const std::pair<QString, QByteArray> dateien[] = {
        {m_heim->eigeneDatei(), Archivbau::beispiel(folge)}, {plandatei(), plan(folge)}};
    for (const auto &[pfad, inhalt] : dateien) {
        QFile datei(pfad);
        QVERIFY(datei.open(QIODevice::WriteOnly));
        QCOMPARE(datei.write(inhalt), inhalt.size());
        QVERIFY(datei.flush());
        QVERIFY(datei.setFileTime(damals, QFileDevice::FileModificationTime));
        QVERIFY(inhalt.startsWith(folge == Folge::BigEndian ? anfangDamals : anfangHeute));
    }
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

QByteArray TestAlteDateien::bytes(const QString &pfad)
{
    QFile datei(pfad);
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
}

QList<QByteArray> TestAlteDateien::aufgehobenes(const QString &name) const
{
    const QDir dort(QFileInfo(m_heim->eigeneDatei()).dir().filePath(u"Sicherungen"_s));
    QList<QByteArray> alle;
    for (const QString &kopie : dort.entryList({name + u" 2009-05-14.daten"_s}, QDir::Files)) {
        alle << bytes(dort.filePath(kopie));
    }
    return alle;
}

void TestAlteDateien::bothAreReadAsTheyAre_data()
{
    QTest::addColumn<Folge>("folge");
    QTest::newRow("little-endian") << Folge::LittleEndian;
    QTest::newRow("big-endian") << Folge::BigEndian;
}

void TestAlteDateien::bothAreReadAsTheyAre()
{
    QFETCH(Folge, folge);
    lege(folge);
    AppController &c = m_fenster->controller();
    QCOMPARE(inhalt(c.KundenDictionary), inhalt(Archivbau::beispielVerzeichnis()));
    QCOMPARE(c.KundenArray, QStringList{u"Ei"_s});
    m_fenster->klicke(0, inEigen);
    QCOMPARE(Probefenster::text(*c.feldB), u"155 kcal"_s);
    QCOMPARE(bytes(m_heim->eigeneDatei()), Archivbau::beispiel(folge)); // untouched so far
    c.Planmoduloeffnen();
    QCOMPARE(c.planmodul->PlanArray, QStringList{u"Ei"_s});
    QCOMPARE(c.planmodul->mengenarray, QList<float>{62});
    QCOMPARE(bytes(plandatei()), plan(folge));
    QVERIFY(m_heim->meldungen.isEmpty());
    QVERIFY(c.hinweise->hinweise().isEmpty()); // nothing is wrong with them
}

void TestAlteDateien::ownFoodsAreKeptAtTheFirstChange()
{
    QFETCH(Folge, folge);
    lege(folge);
    AppController &c = m_fenster->controller();
    c.feldA->setStringValue(u"Neues"_s);
    c.SicherneigeneLM();
    const QByteArray jetzt = bytes(m_heim->eigeneDatei());
    QVERIFY(jetzt.startsWith(anfangHeute));
    QCOMPARE(Archivdatei::lesen(m_heim->eigeneDatei()).archiv.verzeichnis.keys(),
             (QStringList{u"Ei"_s, u"Neues"_s}));
    QCOMPARE(aufgehobenes(u"MahlbergCustomnutr"_s), QList{Archivbau::beispiel(folge)});
}

void TestAlteDateien::thePlanIsKeptAtTheFirstChange()
{
    QFETCH(Folge, folge);
    lege(folge);
    AppController &c = m_fenster->controller();
    c.Planmoduloeffnen();
    c.planmodul->nameimportvontoolbar(zaehlname(2));
    const QByteArray jetzt = bytes(plandatei());
    QVERIFY(jetzt.startsWith(anfangHeute));
    QCOMPARE(Archivdatei::lesen(plandatei()).archiv.verzeichnis.keys(),
             (QStringList{u"Ei"_s, zaehlname(2)}));
    QCOMPARE(aufgehobenes(u"MahlbergPlanmod"_s), QList{plan(folge)});
}

QTEST_MAIN(TestAlteDateien)
#include "TestAlteDateien.moc"
