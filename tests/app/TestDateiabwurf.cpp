#include "Dateiabwurf.h"

#include "Probefenster.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/// Files that are dropped onto the windows, wherever, and drags within the program, which stay what
/// they are.
class TestDateiabwurf : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void filesAreTakenEverywhere_data();
    void filesAreTakenEverywhere();
    void aDroppedFileIsShown();
    void aFoodsNameStaysAFoodsName();
    void aNameOverTheMainWindowIsNotTaken();
    void otherWindowsAreLeftAlone();

private:
    QWidget *ziel(const QString &name) const;
    AppController &c() const { return m_fenster->controller(); }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

/// What a file manager carries: addresses, and the same as text.
std::unique_ptr<QMimeData> dateien(const QList<QUrl> &adressen)
{
    auto was = std::make_unique<QMimeData>();
    was->setUrls(adressen);
    was->setText(adressen.value(0).toString());
    return was;
}

std::unique_ptr<QMimeData> name(const QString &text)
{
    auto was = std::make_unique<QMimeData>();
    was->setText(text);
    return was;
}

struct Antwort
{
    bool herein; ///< the window would take it
    bool genommen;
    Qt::DropAction aktion;
};

/// Drags over a widget and drops there.
Antwort wirf(QWidget &ziel, const QMimeData &was)
{
    const QPoint ort = ziel.rect().center();
    QDragEnterEvent herein(ort, Qt::MoveAction | Qt::CopyAction, &was, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&ziel, &herein);
    QDragMoveEvent weiter(ort, Qt::MoveAction | Qt::CopyAction, &was, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&ziel, &weiter);
    QDropEvent abwurf(QPointF(ort), Qt::MoveAction | Qt::CopyAction, &was, Qt::LeftButton, {});
    if (weiter.isAccepted()) {
        QCoreApplication::sendEvent(&ziel, &abwurf);
    }
    return {herein.isAccepted(), weiter.isAccepted() && abwurf.isAccepted(), abwurf.dropAction()};
}

} // namespace

void TestDateiabwurf::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(zaehltabelle(5));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    c().Planmoduloeffnen();
}

void TestDateiabwurf::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

QWidget *TestDateiabwurf::ziel(const QString &name) const
{
    return name == u"window"_s   ? static_cast<QWidget *>(c().Hauptfenster)
           : name == u"table"_s  ? c().Tabelle->viewport()
           : name == u"search"_s ? c().suchfeld
           : name == u"plan"_s   ? static_cast<QWidget *>(c().planmodul->window())
                                 : c().planmodul->PlanTabelle->viewport();
}

void TestDateiabwurf::filesAreTakenEverywhere_data()
{
    QTest::addColumn<QString>("wohin");
    QTest::newRow("the main window") << u"window"_s;
    QTest::newRow("its table") << u"table"_s;
    QTest::newRow("its search box, which takes text") << u"search"_s;
    QTest::newRow("the plan's window") << u"plan"_s;
    QTest::newRow("its table, which takes names") << u"plantable"_s;
}

void TestDateiabwurf::filesAreTakenEverywhere()
{
    QFETCH(QString, wohin);
    QSignalSpy abgeworfen(&m_fenster->oberflaeche().abwurf, &Dateiabwurf::abgeworfen);
    disconnect(&m_fenster->oberflaeche().abwurf, nullptr, &m_fenster->oberflaeche().empfang,
               nullptr);
    const QList<QUrl> adressen = {QUrl(u"file:///a.daten"_s), QUrl(u"file:///b.daten"_s)};
    QVERIFY(ziel(wohin)->window()->acceptDrops());
    const Antwort antwort = wirf(*ziel(wohin), *dateien(adressen));
    QVERIFY(antwort.herein);
    QVERIFY(antwort.genommen);
    QCOMPARE(antwort.aktion, Qt::CopyAction); // else a file manager would take it away
    QCOMPARE(abgeworfen.size(), 0);           // the drag comes to its end first
    QTRY_COMPARE(abgeworfen.size(), 1);
    QCOMPARE(abgeworfen[0][0].value<QList<QUrl>>(), adressen);
    QCOMPARE(c().suchfeld->text(), QString());
    QVERIFY(c().planmodul->PlanArray.isEmpty());
}

void TestDateiabwurf::aDroppedFileIsShown()
{
    wirf(*c().Hauptfenster, *dateien({QUrl::fromLocalFile(m_heim->pfad(u"fehlt.daten"_s))}));
    QTRY_COMPARE(m_heim->meldungen.size(), 1);
    QVERIFY(m_heim->meldungen[0].erklaerung.contains(u"fehlt.daten"_s));
}

void TestDateiabwurf::aFoodsNameStaysAFoodsName()
{
    QSignalSpy abgeworfen(&m_fenster->oberflaeche().abwurf, &Dateiabwurf::abgeworfen);
    QWidget &tafel = *ziel(u"plantable"_s);
    QVERIFY(wirf(tafel, *name(zaehlname(2))).genommen);
    QCOMPARE(c().planmodul->PlanArray, QStringList{zaehlname(2)});
    QCoreApplication::processEvents();
    QCOMPARE(abgeworfen.size(), 0);
}

void TestDateiabwurf::aNameOverTheMainWindowIsNotTaken()
{
    const Antwort antwort = wirf(*c().Hauptfenster, *name(zaehlname(2)));
    QVERIFY(!antwort.herein);
    QVERIFY(!antwort.genommen);
}

void TestDateiabwurf::otherWindowsAreLeftAlone()
{
    QSignalSpy abgeworfen(&m_fenster->oberflaeche().abwurf, &Dateiabwurf::abgeworfen);
    QLineEdit anderes;
    anderes.show();
    wirf(anderes, *dateien({QUrl(u"file:///a.daten"_s)}));
    QCoreApplication::processEvents();
    QCOMPARE(abgeworfen.size(), 0);
    QVERIFY(!anderes.text().isEmpty()); // a field for text takes an address as text
}

QTEST_MAIN(TestDateiabwurf)
#include "TestDateiabwurf.moc"
