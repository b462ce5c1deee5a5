#include "Papierteile.h"

#include "Hinweisstreifen.h"
#include "Schieber.h"
#include "Textfeld.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

#include <optional>

namespace {

/// What is written where a control stands on the screen.
struct Aufschrift
{
    QString text;
    Qt::Alignment lage = Qt::AlignLeft | Qt::AlignVCenter;
    int flaggen = 0; ///< as QPainter::drawText takes them
    QPalette::ColorRole farbe = QPalette::WindowText;
    bool fett = false;
};

bool istNurAmBildschirm(const QWidget &teil)
{
    return teil.property("nurAmBildschirm").toBool() ||
           qobject_cast<const Hinweisstreifen *>(&teil) != nullptr;
}

/// These have parts of their own, which show the same once more.
bool schreibtFuerSeineTeile(const QWidget &teil)
{
    return qobject_cast<const Schieber *>(&teil) != nullptr ||
           qobject_cast<const QComboBox *>(&teil) != nullptr;
}

bool istBedienung(const QWidget &teil)
{
    return qobject_cast<const QAbstractSlider *>(&teil) != nullptr ||
           qobject_cast<const QAbstractSpinBox *>(&teil) != nullptr ||
           qobject_cast<const QPushButton *>(&teil) != nullptr ||
           qobject_cast<const QToolButton *>(&teil) != nullptr;
}

/// A caption's letter for the keyboard is of no use on paper.
Aufschrift beschriftung(const QString &text)
{
    return {.text = text, .flaggen = Qt::TextHideMnemonic};
}

/// An empty choice is often one as well, and says so in the place of its text.
QString gewaehltes(const QComboBox &auswahl)
{
    if (!auswahl.currentText().isEmpty()) {
        return auswahl.currentText();
    }
    return auswahl.isEditable() ? auswahl.lineEdit()->placeholderText() : auswahl.placeholderText();
}

Aufschrift feldaufschrift(const QLineEdit &feld)
{
    const auto *textfeld = qobject_cast<const Textfeld *>(&feld);
    return {.text = textfeld != nullptr ? textfeld->textAufPapier() : feld.displayText(),
            .lage = (feld.alignment() & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter,
            .farbe = QPalette::Text};
}

/// Nothing for a part that looks on paper as it does on the screen.
std::optional<Aufschrift> aufschrift(const QWidget &teil)
{
    if (const auto *schieber = qobject_cast<const Schieber *>(&teil)) {
        return Aufschrift{.text = schieber->textAufPapier()};
    }
    if (const auto *auswahl = qobject_cast<const QComboBox *>(&teil)) {
        return Aufschrift{.text = gewaehltes(*auswahl)};
    }
    if (const auto *feld = qobject_cast<const QLineEdit *>(&teil)) {
        return feldaufschrift(*feld);
    }
    if (const auto *wahl = qobject_cast<const QRadioButton *>(&teil)) {
        return wahl->isChecked() ? beschriftung(wahl->text()) : Aufschrift();
    }
    if (const auto *schalter = qobject_cast<const QCheckBox *>(&teil)) {
        return beschriftung(schalter->text()); // which says how it stands
    }
    if (const auto *gruppe = qobject_cast<const QGroupBox *>(&teil)) {
        Aufschrift titel = beschriftung(gruppe->title());
        titel.lage = Qt::AlignLeft | Qt::AlignTop;
        titel.fett = true;
        return titel;
    }
    const auto *zeile = qobject_cast<const QLabel *>(&teil);
    if (zeile != nullptr && zeile->buddy() != nullptr && zeile->text().contains(u'&')) {
        Aufschrift text = beschriftung(zeile->text());
        text.lage = zeile->alignment();
        text.flaggen |= zeile->wordWrap() ? Qt::TextWordWrap : 0;
        return text;
    }
    return {};
}

void schreibe(QWidget &teil, const Aufschrift &aufschrift)
{
    QPainter maler(&teil);
    QFont schrift = teil.font();
    schrift.setBold(schrift.bold() || aufschrift.fett);
    maler.setFont(schrift);
    maler.setPen(teil.palette().color(QPalette::Active, aufschrift.farbe));
    const auto lage = static_cast<int>(aufschrift.lage.toInt());
    const bool zeile = qobject_cast<const QLabel *>(&teil) != nullptr;
    maler.drawText(zeile ? teil.contentsRect() : teil.rect(), lage | aufschrift.flaggen,
                   aufschrift.text);
}

} // namespace

Papierteile::Papierteile(QWidget &flaeche)
{
    beachte(flaeche, false);
}

void Papierteile::beachte(QWidget &teil, bool weggelassen)
{
    const bool ganzWeg = weggelassen || istNurAmBildschirm(teil);
    if (ganzWeg) {
        m_weggelassen << &teil;
    }
    teil.installEventFilter(this);
    for (QObject *kind : teil.children()) {
        if (kind->isWidgetType()) {
            beachte(*static_cast<QWidget *>(kind), ganzWeg || schreibtFuerSeineTeile(teil));
        }
    }
}

bool Papierteile::eventFilter(QObject *ziel, QEvent *event)
{
    if (event->type() != QEvent::Paint) {
        return QObject::eventFilter(ziel, event);
    }
    auto &teil = *static_cast<QWidget *>(ziel);
    if (m_weggelassen.contains(ziel) || istBedienung(teil)) {
        return true;
    }
    const std::optional<Aufschrift> text = aufschrift(teil);
    if (text) {
        schreibe(teil, *text);
    }
    return text.has_value();
}
