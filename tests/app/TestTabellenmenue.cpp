#include "Probefenster.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPointer>
#include <QTest>

using enum Naehrwert;

/// The menu of the main table, by the right button of the mouse and by keys.
class TestTabellenmenue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theMenuPutsInTheCellUnderTheMouse();
    void theMenuIsThereForTheKeyboard_data();
    void theMenuIsThereForTheKeyboard();
    void theMenuOffersWhatTheCellAllows_data();
    void theMenuOffersWhatTheCellAllows();
    void theMenuCopiesAnOwnFood();
    void aBuiltInFoodIsNoOwnOneOfItsName();
    void anOwnFoodChosenAmongTheResultsIsNotDeleted();
    void theMenuGoesToTheNextResult();
    void theMenuDeletesTheChosenOwnFood();
    void theMenuGivesTheColumnsTheirWidths();

private:
    AppController &controller() const { return m_fenster->controller(); }
    Planmodul &plan() const { return *controller().planmodul; }
    void suche(const QString &text) const { m_fenster->suche(text); }
    QMenu *oeffneMenue(int zeile, int spalte) const;
    static void waehle(QMenu &menue, const QString &text);

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

const QString leereZeile = QStringLiteral("-");
const QString kuchen = QStringLiteral("Omas Kuchen");
const QString torte = QStringLiteral("Omas Torte");

/// What a menu offers, without its keys and underlined letters; what can't be chosen in brackets.
QStringList eintraege(const QMenu &menue)
{
    QStringList alle;
    for (const QAction *aktion : menue.actions()) {
        const QString text = aktion->text().remove(u'&').section(u'\t', 0, 0);
        if (!aktion->isSeparator()) {
            alle << (aktion->isEnabled() ? text : u'(' + text + u')');
        }
    }
    return alle;
}

} // namespace

/// The table begins with a line without values, as the built-in one does: row 8 is food 7.
void TestTabellenmenue::init()
{
    m_heim = std::make_unique<Probeheim>();
    Lebensmittelverzeichnis tabelle = zaehltabelle(900);
    tabelle.insert(leereZeile, lebensmittel(leereZeile));
    m_heim->schreibeTabelle(tabelle);
    m_heim->schreibeEigene(
        verzeichnis({lebensmittel(kuchen, {{kal, 400}}), lebensmittel(torte, {{kal, 500}})}));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    m_fenster->klicke(3, inName);
    m_fenster->tippeMenge(QStringLiteral("150"));
}

void TestTabellenmenue::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

QMenu *TestTabellenmenue::oeffneMenue(int zeile, int spalte) const
{
    QWidget *flaeche = controller().Tabelle->viewport();
    const QPoint ort = m_fenster->mitte(zeile, spalte);
    QTest::mouseClick(flaeche, Qt::RightButton, {}, ort);
    QContextMenuEvent ereignis(QContextMenuEvent::Mouse, ort, flaeche->mapToGlobal(ort));
    QApplication::sendEvent(flaeche, &ereignis);
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

void TestTabellenmenue::waehle(QMenu &menue, const QString &text)
{
    for (QAction *aktion : menue.actions()) {
        if (aktion->text().remove(u'&').section(u'\t', 0, 0) == text) {
            QTest::mouseClick(&menue, Qt::LeftButton, {}, menue.actionGeometry(aktion).center());
            return;
        }
    }
    QFAIL(qPrintable(text));
}

void TestTabellenmenue::theMenuPutsInTheCellUnderTheMouse()
{
    QMenu *menue = oeffneMenue(8, inName);
    QVERIFY(menue != nullptr);
    QCOMPARE(controller().Tabelle->selectedRow(), 3);
    QCOMPARE(menue->actions().constFirst()->text().section(u'\t', 1),
             QKeySequence(QStringLiteral("Ctrl+Return")).toString(QKeySequence::NativeText));
    const QPointer<QMenu> danach(menue);
    waehle(*menue, QStringLiteral("In den Plan geben"));
    QTRY_VERIFY(danach.isNull()); // one is made each time
    QCOMPARE(plan().PlanArray, QStringList{zaehlname(7)});
    QCOMPARE(plan().mengenarray, QList<float>{150.0F});
    QCOMPARE(controller().Tabelle->selectedRow(), 3); // nothing was chosen
    QCOMPARE(Probefenster::text(*controller().feldA), zaehlname(2));
}

void TestTabellenmenue::theMenuIsThereForTheKeyboard_data()
{
    QTest::addColumn<bool>("menuetaste");
    QTest::newRow("with the key for menus") << true;
    QTest::newRow("with Shift+F10") << false;
}

void TestTabellenmenue::theMenuIsThereForTheKeyboard()
{
    QFETCH(bool, menuetaste);
    m_fenster->klicke(8, inName);
    Tabellenansicht *tabelle = controller().Tabelle;
    tabelle->setFocus();
    if (menuetaste) {
        QContextMenuEvent ereignis(QContextMenuEvent::Keyboard, QPoint(5, 5),
                                   tabelle->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(tabelle, &ereignis);
    } else {
        QTest::keyClick(tabelle, Qt::Key_F10, Qt::ShiftModifier);
    }
    auto *menue = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menue != nullptr);
    const QPoint zelle = tabelle->viewport()->mapToGlobal(m_fenster->mitte(8, inName));
    QCOMPARE(menue->pos(), zelle);
    waehle(*menue, QStringLiteral("In den Plan geben"));
    QCOMPARE(plan().PlanArray, QStringList{zaehlname(7)});
}

void TestTabellenmenue::theMenuOffersWhatTheCellAllows_data()
{
    QTest::addColumn<QString>("gesucht");
    QTest::addColumn<int>("gewaehlt"); // row of the own foods, −1 for a built-in one
    QTest::addColumn<int>("zeile");
    QTest::addColumn<int>("spalte");
    QTest::addColumn<QStringList>("eintraege");
    const QString geben = QStringLiteral("In den Plan geben");
    const QString keines = QStringLiteral("(In den Plan geben)");
    const QString weiter = QStringLiteral("Nächster Treffer");
    const QString ab = QStringLiteral("Werte als neues Lebensmittel abschreiben …");
    const QString weg = QStringLiteral("Löschen …");
    const QString breiten = QStringLiteral("Spalten anpassen");
    QTest::newRow("a built-in food")
        << QString() << -1 << 8 << inName << QStringList{geben, breiten};
    QTest::newRow("after a search")
        << QStringLiteral("omas") << -1 << 8 << inName << QStringList{geben, weiter, breiten};
    QTest::newRow("after a search that found nothing")
        << QStringLiteral("kaviar") << -1 << 8 << inName << QStringList{geben, breiten};
    QTest::newRow("an own food") << QString() << -1 << 1 << inEigen
                                 << QStringList{geben, ab, breiten};
    QTest::newRow("the chosen own food")
        << QString() << 1 << 1 << inEigen << QStringList{geben, ab, weg, breiten};
    QTest::newRow("another own food than the chosen one")
        << QString() << 0 << 1 << inEigen << QStringList{geben, ab, breiten};
    QTest::newRow("an own food among the results")
        << QStringLiteral("omas") << 1 << 2 << inSuch << QStringList{geben, weiter, ab, breiten};
    QTest::newRow("the line without values")
        << QString() << -1 << 0 << inName << QStringList{keines, breiten};
    QTest::newRow("an empty cell")
        << QString() << 1 << 7 << inEigen << QStringList{keines, breiten};
}

void TestTabellenmenue::theMenuOffersWhatTheCellAllows()
{
    QFETCH(QString, gesucht);
    QFETCH(int, gewaehlt);
    QFETCH(int, zeile);
    QFETCH(int, spalte);
    if (!gesucht.isEmpty()) {
        suche(gesucht);
    }
    if (gewaehlt >= 0) {
        m_fenster->klicke(gewaehlt, inEigen);
    }
    const QMenu *menue = oeffneMenue(zeile, spalte);
    QVERIFY(menue != nullptr);
    QTEST(::eintraege(*menue), "eintraege");
    QStringList buchstaben;
    for (const QAction *aktion : menue->actions()) {
        const qsizetype stelle = aktion->text().indexOf(u'&');
        buchstaben << (aktion->isSeparator() ? QString()
                                             : aktion->text().mid(stelle + 1, 1).toLower());
    }
    QCOMPARE(buchstaben.removeDuplicates(), 0);
}

/// It gets a name of its own, so that saving it does not change the one that it comes from.
void TestTabellenmenue::theMenuCopiesAnOwnFood()
{
    QMenu *menue = oeffneMenue(1, inEigen);
    waehle(*menue, QStringLiteral("Werte als neues Lebensmittel abschreiben …"));
    QVERIFY(controller().einfenster->isVisible());
    QCOMPARE(controller().EingabeFensterfeldA->stringValue(), QStringLiteral("Omas Torte (eigen)"));
    QTRY_COMPARE(controller().EingabeFensterfeldA->selectedText(),
                 QStringLiteral("Omas Torte (eigen)")); // another name is typed at once
    QCOMPARE(controller().EingabeFensterfeldB->floatValue(), 500.0F);
    QCOMPARE(Probefenster::text(*controller().feldA), zaehlname(2)); // what was on display
    QCOMPARE(controller().Tabelle->selectedRow(), 3);
}

/// A cell of the table stands for the food of the table, whatever own foods are called.
void TestTabellenmenue::aBuiltInFoodIsNoOwnOneOfItsName()
{
    controller().EingabeFensterfeldA->setStringValue(zaehlname(7));
    controller().umschreibenDerEingabeFelder();
    QVERIFY(controller().KundenDictionary.contains(zaehlname(7)));
    QCOMPARE(
        ::eintraege(*oeffneMenue(8, inName)),
        QStringList({QStringLiteral("In den Plan geben"), QStringLiteral("Spalten anpassen")}));
}

/// Deleting is about the column of the own foods, and the user was in another one since.
void TestTabellenmenue::anOwnFoodChosenAmongTheResultsIsNotDeleted()
{
    suche(QStringLiteral("omas"));
    m_fenster->klicke(1, inEigen);
    m_fenster->klicke(2, inSuch);
    QCOMPARE(controller().Tabelle->selectedRow(), 1);
    QCOMPARE(controller().feldA->stringValue(), torte);
    QVERIFY(!::eintraege(*oeffneMenue(1, inEigen)).contains(QStringLiteral("Löschen …")));
}

void TestTabellenmenue::theMenuGoesToTheNextResult()
{
    suche(QStringLiteral("000"));
    waehle(*oeffneMenue(8, inName), QStringLiteral("Nächster Treffer"));
    QCOMPARE(Probefenster::text(*controller().feldA), zaehlname(0));
}

void TestTabellenmenue::theMenuDeletesTheChosenOwnFood()
{
    m_fenster->klicke(1, inEigen);
    QMenu *menue = oeffneMenue(1, inEigen);
    m_heim->antworten = {1};
    waehle(*menue, QStringLiteral("Löschen …"));
    QCOMPARE(m_heim->meldungen.size(), 1);
    QCOMPARE(m_heim->meldungen.constFirst().gegenstand, QStringLiteral("„Omas Torte“"));
    QCOMPARE(controller().KundenArray, QStringList{kuchen});
}

void TestTabellenmenue::theMenuGivesTheColumnsTheirWidths()
{
    const QString schluessel = QStringLiteral("Hauptfenster/Spalte_name");
    const int vorher = controller().Tabelle->columnWidth(inName);
    controller().Tabelle->setColumnWidth(inName, vorher + 70);
    QCOMPARE(m_heim->einstellungen().value(schluessel).toInt(), vorher + 70);
    waehle(*oeffneMenue(8, inName), QStringLiteral("Spalten anpassen"));
    QCOMPARE(controller().Tabelle->columnWidth(inName), vorher);
    QVERIFY(!m_heim->einstellungen().contains(schluessel));
}

QTEST_MAIN(TestTabellenmenue)
#include "TestTabellenmenue.moc"
