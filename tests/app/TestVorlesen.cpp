#include "Fensterrunde.h"

#include "Bedarfsbalken.h"
#include "Farblegende.h"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QSlider>
#include <QTabBar>
#include <QTest>

/// What a screen reader tells those who can't see the windows, in both languages.
class TestVorlesen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatCanBeUsedHasAName_data();
    void whatCanBeUsedHasAName();
    void picturesSayWhatTheyShow_data();
    void picturesSayWhatTheyShow();
    void whatCantBeUsedSaysWhy_data();
    void whatCantBeUsedSaysWhy();
    void valuesHaveTheirUnit_data();
    void valuesHaveTheirUnit();
    void tablesNameTheirRowsAndColumns_data();
    void tablesNameTheirRowsAndColumns();
    void aPictureSpeaksOfWhatItShowsNow();
};

namespace {

QString vorgelesen(QWidget &widget, QAccessible::Text was)
{
    const QAccessibleInterface *zugang = QAccessible::queryAccessibleInterface(&widget);
    return zugang != nullptr ? zugang->text(was) : QString();
}

bool istBild(const QWidget &widget)
{
    return qobject_cast<const Zeichenansicht *>(&widget) != nullptr ||
           qobject_cast<const Bedarfsbalken *>(&widget) != nullptr ||
           qobject_cast<const Farblegende *>(&widget) != nullptr;
}

bool istBedienbar(const QWidget &widget)
{
    return dynamic_cast<const Wertehalter *>(&widget) != nullptr ||
           qobject_cast<const QAbstractItemView *>(&widget) != nullptr ||
           qobject_cast<const QAbstractSlider *>(&widget) != nullptr ||
           qobject_cast<const QAbstractSpinBox *>(&widget) != nullptr ||
           qobject_cast<const QAbstractButton *>(&widget) != nullptr ||
           qobject_cast<const QComboBox *>(&widget) != nullptr ||
           qobject_cast<const QLineEdit *>(&widget) != nullptr;
}

/// The widgets that are seen in a window and are the program's own.
QWidgetList sichtbare(const QWidget &fenster, bool (*art)(const QWidget &))
{
    QWidgetList alle;
    for (QWidget *widget : fenster.findChildren<QWidget *>()) {
        const bool inRollleiste = widget->inherits("QScrollBar");
        if (widget->isVisible() && widget->window() == &fenster && art(*widget) &&
            !istVonQt(*widget) && !inRollleiste) {
            alle << widget;
        }
    }
    return alle;
}

void beideSprachen()
{
    QTest::addColumn<QString>("sprache");
    QTest::newRow("German") << QStringLiteral("de");
    QTest::newRow("English") << QStringLiteral("en");
}

/// Goes through all windows and collects what is wrong with widgets of this kind.
void pruefe(const QString &sprache, bool (*art)(const QWidget &),
            const std::function<QString(QWidget &)> &mangel)
{
    Fensterrunde runde(sprache);
    QStringList alle;
    int geprueft = 0;
    runde.gehe([&](const QString &name, const QWidget &fenster) {
        for (QWidget *widget : sichtbare(fenster, art)) {
            ++geprueft;
            const QString einer = mangel(*widget);
            if (!einer.isEmpty()) {
                alle << name + QLatin1String(": ") + bezeichne(*widget) + QLatin1String(": ") +
                            einer;
            }
        }
    });
    alle.removeDuplicates();
    QVERIFY(geprueft > 0);
    QVERIFY2(alle.isEmpty(), qPrintable(alle.join(u'\n')));
}

} // namespace

void TestVorlesen::whatCanBeUsedHasAName_data()
{
    beideSprachen();
}

void TestVorlesen::whatCanBeUsedHasAName()
{
    QFETCH(QString, sprache);
    const auto art = [](const QWidget &widget) {
        return istBedienbar(widget) || istBild(widget);
    };
    pruefe(sprache, art, [](QWidget &widget) -> QString {
        const QString name = vorgelesen(widget, QAccessible::Name);
        return name.trimmed().isEmpty()      ? QStringLiteral("no name")
               : name == widget.objectName() ? QStringLiteral("the name is the object's")
               : name.contains(u'&')         ? QStringLiteral("a sign for a letter: ") + name
                                             : QString();
    });
}

void TestVorlesen::picturesSayWhatTheyShow_data()
{
    beideSprachen();
}

void TestVorlesen::picturesSayWhatTheyShow()
{
    QFETCH(QString, sprache);
    pruefe(sprache, istBild, [](QWidget &widget) -> QString {
        const QAccessibleInterface *zugang = QAccessible::queryAccessibleInterface(&widget);
        return zugang == nullptr || zugang->role() != QAccessible::Graphic
                   ? QStringLiteral("no picture")
               : zugang->text(QAccessible::Description).isEmpty() ? QStringLiteral("no description")
                                                                  : QString();
    });
}

void TestVorlesen::whatCantBeUsedSaysWhy_data()
{
    beideSprachen();
}

void TestVorlesen::whatCantBeUsedSaysWhy()
{
    QFETCH(QString, sprache);
    const auto art = [](const QWidget &widget) {
        return istBedienbar(widget) && !widget.isEnabled() &&
               qobject_cast<const Schieber *>(&widget) == nullptr; // its two parts say it
    };
    pruefe(sprache, art, [](QWidget &widget) -> QString {
        return vorgelesen(widget, QAccessible::Description).isEmpty() ? QStringLiteral("no reason")
                                                                      : QString();
    });
}

void TestVorlesen::valuesHaveTheirUnit_data()
{
    beideSprachen();
}

void TestVorlesen::valuesHaveTheirUnit()
{
    QFETCH(QString, sprache);
    const auto art = [](const QWidget &widget) {
        const auto *schieber = qobject_cast<const Schieber *>(&widget);
        const auto *feld = qobject_cast<const Textfeld *>(&widget);
        return (schieber != nullptr && schieber->isEnabled() && !schieber->unit().isEmpty()) ||
               (feld != nullptr && !feld->unit().isEmpty() && feld->haeltZahl() &&
                !feld->hasFocus());
    };
    pruefe(sprache, art, [](QWidget &widget) -> QString {
        const auto mit = [](const QString &text, const QString &einheit) {
            return text.endsWith(QChar(QChar::Nbsp) + einheit) ? QString() : u'"' + text + u'"';
        };
        if (const auto *schieber = qobject_cast<Schieber *>(&widget)) {
            return mit(vorgelesen(*schieber->regler(), QAccessible::Description),
                       schieber->unit()) +
                   mit(vorgelesen(*schieber->eingabe(), QAccessible::Description),
                       schieber->unit());
        }
        return mit(vorgelesen(widget, QAccessible::Value),
                   qobject_cast<Textfeld *>(&widget)->unit());
    });
}

void TestVorlesen::tablesNameTheirRowsAndColumns_data()
{
    beideSprachen();
}

void TestVorlesen::tablesNameTheirRowsAndColumns()
{
    QFETCH(QString, sprache);
    const auto art = [](const QWidget &widget) {
        return widget.inherits("QTableView");
    };
    pruefe(sprache, art, [](QWidget &widget) -> QString {
        auto *zugang = QAccessible::queryAccessibleInterface(&widget)->tableInterface();
        QString ohne;
        for (int i = 0; i < zugang->columnCount(); ++i) {
            ohne += zugang->columnDescription(i).isEmpty() ? QStringLiteral("column %1 ").arg(i)
                                                           : QString();
        }
        for (int i = 0; i < zugang->rowCount(); ++i) {
            ohne +=
                zugang->rowDescription(i).isEmpty() ? QStringLiteral("row %1 ").arg(i) : QString();
        }
        return ohne;
    });
}

/// The figures of the description are those that are drawn at the moment.
void TestVorlesen::aPictureSpeaksOfWhatItShowsNow()
{
    Bedarfsbalken balken;
    balken.setGrenze(10);
    balken.zeige(12, Textfarbe::Gruen);
    QCOMPARE(vorgelesen(balken, QAccessible::Description),
             QStringLiteral("12 %, im Ziel (ab 10 %)"));
    balken.zeige(3, Textfarbe::Rot);
    QCOMPARE(vorgelesen(balken, QAccessible::Description),
             QStringLiteral("3 %, verfehlt (ab 10 %)"));
    Farblegende farben;
    farben.setEintraege(
        {{Qt::green, QStringLiteral("Protein")}, {Qt::blue, QStringLiteral("Fett")}});
    QCOMPARE(vorgelesen(farben, QAccessible::Description),
             QStringLiteral("Bedeutung der Farben, von links: Protein, Fett"));
    Schieber schieber;
    schieber.setUnit(QStringLiteral("g"));
    schieber.setDoubleValue(30);
    QCoreApplication::processEvents();
    QCOMPARE(vorgelesen(*schieber.regler(), QAccessible::Description).simplified(),
             QStringLiteral("30 g"));
    schieber.setDoubleValue(45);
    QCoreApplication::processEvents();
    QCOMPARE(vorgelesen(*schieber.regler(), QAccessible::Description).simplified(),
             QStringLiteral("45 g"));
}

QTEST_MAIN(TestVorlesen)
#include "TestVorlesen.moc"
