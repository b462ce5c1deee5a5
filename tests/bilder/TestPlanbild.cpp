#include "Bilderfenster.h"

#include "Erscheinungsbild.h"
#include "Seiteneinrichtung.h"

#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QScrollBar>

using namespace Qt::StringLiterals;

/// What the plan's window looks like, and what it prints.
class TestPlanbild : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itIsEmpty();
    void aDay();
    void theLastColumns();
    void aDayInTheDark();
    void aDayInEnglish();
    void foodsThatAreGone();
    void aSmallScreen();
    void onPaper_data();
    void onPaper();
    void theFoodOnPaper();
    void thePreview();
};

namespace {

/// Every day another day stands on the print.
Druckauftrag ohneTag(const Druckauftrag &auftrag)
{
    Druckauftrag ergebnis = auftrag;
    ergebnis.male = [male = auftrag.male](QPainter &maler, const QPageLayout &seite, int nummer) {
        male(maler, seite, nummer);
        const double unten = seite.fullRect(QPageLayout::Point).height();
        maler.fillRect(QRectF(0, unten - 34, 200, 16), Qt::white);
    };
    return ergebnis;
}

/// A page of a print on white paper, with so many pixels to a point.
QImage gedruckt(const Druckauftrag &auftrag, const QPageLayout &seite, int nummer)
{
    constexpr double pixel = 1.25;
    const QSizeF papier = seite.fullRect(QPageLayout::Point).size();
    QImage bild((papier * pixel).toSize(), QImage::Format_RGB32);
    bild.fill(Qt::white);
    QPainter maler(&bild);
    maler.scale(pixel, pixel);
    ohneTag(auftrag).male(maler, seite, nummer);
    return bild;
}

} // namespace

void TestPlanbild::itIsEmpty()
{
    const Bilderfenster fenster;
    fenster.oeffnePlan();
    Bilderrahmen::pruefe(u"plan-leer"_s, *fenster.plan().window());
}

void TestPlanbild::aDay()
{
    const Bilderfenster fenster;
    fenster.rechne();
    fenster.plane();
    Bilderrahmen::pruefe(u"plan-tag"_s, *fenster.plan().window());
    Bilderrahmen::pruefe(u"plan-auswertung"_s, *fenster.plan().boxinhalt); // seen whole
}

/// The ratings stand there; one row is selected.
void TestPlanbild::theLastColumns()
{
    const Bilderfenster fenster;
    fenster.plane();
    fenster.plan().PlanTabelle->selectRow(8);
    QScrollBar *rollen = fenster.plan().SummenTabelle->horizontalScrollBar();
    rollen->setValue(rollen->maximum());
    Bilderrahmen::pruefe(u"plan-letzte-spalten"_s, *fenster.plan().obereSeite);
}

void TestPlanbild::aDayInTheDark()
{
    const Bilderfenster fenster;
    fenster.rechne();
    fenster.plane();
    zeigeErscheinungsbild(Erscheinungsbild::Dunkel);
    Bilderrahmen::pruefe(u"plan-tag-dunkel"_s, *fenster.plan().window());
}

void TestPlanbild::aDayInEnglish()
{
    const Bilderfenster fenster(u"en"_s);
    fenster.rechne();
    fenster.plane();
    Bilderrahmen::pruefe(u"plan-englisch"_s, *fenster.plan().window());
}

void TestPlanbild::foodsThatAreGone()
{
    const Bilderfenster fenster;
    fenster.oeffnePlan();
    Planliste rest;
    rest.PlanArray = {u"Haferflocken"_s, u"Omas Auflauf"_s};
    rest.mengenarray = {50, 200};
    fenster.plan().uebernimmPlan(rest);
    Bilderrahmen::pruefe(u"plan-verschwundenes"_s, *fenster.plan().obereSeite);
    Bilderrahmen::pruefe(u"plan-hinweis"_s, *fenster.plan().hinweise);
}

/// What a desktop leaves of a screen of 1024 x 640.
void TestPlanbild::aSmallScreen()
{
    const Bilderfenster fenster;
    fenster.plane();
    fenster.plan().window()->resize(1016, 604);
    Bilderrahmen::pruefe(u"plan-klein"_s, *fenster.plan().window());
}

void TestPlanbild::onPaper_data()
{
    QTest::addColumn<int>("form");
    QTest::addColumn<QString>("bild");
    QTest::newRow("the simple list") << 0 << u"druck-liste"_s;
    QTest::newRow("the list with all values") << 1 << u"druck-naehrwerte"_s;
    QTest::newRow("the evaluation") << 2 << u"druck-auswertung"_s;
}

void TestPlanbild::onPaper()
{
    QFETCH(int, form);
    QFETCH(QString, bild);
    Druckauftrag auftrag;
    Bilderfenster fenster;
    fenster.drucke = [&auftrag](QWidget *, const Druckauftrag &gewollt) {
        auftrag = gewollt;
    };
    fenster.rechne();
    fenster.plane();
    fenster.heim().antworten << form;
    fenster.plan().druckenentscheidung();
    QVERIFY(auftrag.male);
    const QPageLayout seite = gemerkteSeite(fenster.heim().einstellungen());
    Bilderrahmen::pruefe(bild, gedruckt(auftrag, seite, 1));
}

void TestPlanbild::theFoodOnPaper()
{
    Druckauftrag auftrag;
    Bilderfenster fenster;
    fenster.drucke = [&auftrag](QWidget *, const Druckauftrag &gewollt) {
        auftrag = gewollt;
    };
    fenster.waehle(u"Haferflocken"_s);
    fenster->drucken();
    QVERIFY(auftrag.male);
    const QPageLayout seite = gemerkteSeite(fenster.heim().einstellungen());
    Bilderrahmen::pruefe(u"druck-lebensmittel"_s, gedruckt(auftrag, seite, 1));
}

void TestPlanbild::thePreview()
{
    Bilderfenster fenster;
    const Drucktuer tuer = systemdrucktuer(fenster.heim().einstellungen(),
                                           [](QWidget *, const Meldung &) { return 0; });
    fenster.drucke = [&tuer](QWidget *worueber, const Druckauftrag &auftrag) {
        tuer(worueber, ohneTag(auftrag));
    };
    fenster.plane();
    fenster.plan().window()->resize(900, 700);
    fenster.plan().drucken();
    auto *vorschau = fenster.plan().window()->findChild<QPrintPreviewDialog *>();
    QVERIFY(vorschau != nullptr);
    QVERIFY(QTest::qWaitForWindowActive(vorschau));
    vorschau->printer()->setOutputFormat(QPrinter::PdfFormat);
    Bilderrahmen::pruefe(u"druckvorschau"_s, *vorschau);
    vorschau->close();
}

int main(int argc, char **argv)
{
    return Bilderrahmen::fuehreAus<TestPlanbild>(argc, argv);
}

#include "TestPlanbild.moc"
