#include "Textfeld.h"

#include "Fokusstil.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPalette>
#include <QRegularExpression>
#include <QToolTip>
#include <QValidator>

#include <cmath>

namespace {

/// Sent by a field to itself, once per turn of the event loop, to bring its text up to date.
const QEvent::Type auffrischen = static_cast<QEvent::Type>(QEvent::registerEventType());

/// Lets the keys of a number pass, as far as any number of a food goes.
class Zahlenpruefer : public QValidator
{
public:
    using QValidator::QValidator;

    State validate(QString &text, int &stelle) const override
    {
        static const QRegularExpression zahl(
            QRegularExpression::anchoredPattern(QStringLiteral("[0-9]{0,7}([.,][0-9]{0,6})?")));
        return entferneTausender(text, stelle) && zahl.match(text).hasMatch() ? Acceptable
                                                                              : Invalid;
    }
};

/// True when the field is too narrow for what it shows; a name can be as long as it likes.
bool schneidetAb(const QLineEdit &feld)
{
    constexpr int rand = 4; // that a line of text keeps free on both sides
    return feld.fontMetrics().horizontalAdvance(feld.text()) + rand > feld.contentsRect().width();
}

} // namespace

Textfeld::Textfeld(QWidget *parent) : Zahlenzeile(parent)
{
    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(true); // a value of 0 hides its field; the others stay in place
    setSizePolicy(policy);
    setEditable(false);
    connect(this, &QLineEdit::textEdited, this, &Textfeld::tippe);
    connect(this, &QLineEdit::editingFinished, this, [this] {
        if (isModified()) {
            setModified(false);
            if (m_decimals >= 0 || !m_unit.isEmpty()) {
                setDoubleValue(doubleValue()); // a number field shows what it understood
            }
            Q_EMIT betaetigt();
        }
    });
}

void Textfeld::setEditable(bool editable)
{
    m_editable = editable;
    setReadOnly(!editable);
    setFrame(editable);
    setFocusPolicy(editable || m_erreichbar ? Qt::StrongFocus : Qt::ClickFocus);
    einkleiden();
    erklaeren();
    wertGesetzt();
}

void Textfeld::setErreichbar(bool erreichbar)
{
    m_erreichbar = erreichbar;
    setEditable(m_editable);
}

void Textfeld::setNurZahlen(bool nurZahlen)
{
    setValidator(nurZahlen ? new Zahlenpruefer(this) : nullptr);
    erklaeren();
}

void Textfeld::setDecimals(int decimals)
{
    m_decimals = decimals;
    erklaeren();
    wertGesetzt();
}

void Textfeld::setSignificantDigits(int digits)
{
    m_significantDigits = digits;
    wertGesetzt();
}

void Textfeld::setTrailingZeros(bool zeros)
{
    m_trailingZeros = zeros;
    wertGesetzt();
}

void Textfeld::setUnit(const QString &unit)
{
    m_unit = unit;
    wertGesetzt();
}

void Textfeld::setUebersetzt(bool uebersetzt)
{
    m_uebersetzt = uebersetzt;
    wertGesetzt();
}

void Textfeld::setMuster(const QString &muster)
{
    m_muster = muster;
    updateGeometry();
}

void Textfeld::setTextColor(Textfarbe farbe)
{
    if (m_farbe != farbe) {
        m_farbe = farbe;
        einkleiden();
    }
}

/// A display is part of the window's surface, an entry field a sheet of its own.
void Textfeld::einkleiden()
{
    QPalette kleid;
    if (!m_editable) {
        kleid.setColor(QPalette::Base, Qt::transparent);
    }
    if (m_farbe != Textfarbe::Standard) {
        kleid.setColor(QPalette::Text, farbeFuer(m_farbe, QGuiApplication::palette()));
    }
    setPalette(kleid);
}

void Textfeld::changeEvent(QEvent *event)
{
    Zahlenzeile::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_farbe != Textfarbe::Standard &&
        palette().color(QPalette::Text) != farbeFuer(m_farbe, QGuiApplication::palette())) {
        einkleiden();
    }
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::LocaleChange) {
        veralte(); // another word, another decimal mark
    }
}

/// A number field keeps the number from before where the typed one is more than can be computed
/// with: infinity would spread to all that depends on it.
void Textfeld::tippe(const QString &text)
{
    if (!m_vorher) {
        m_vorher = doubleValue();
    }
    if (nimmtZahl() && !std::isfinite(static_cast<float>(zahlAusText(text)))) {
        uebernimm(*m_vorher);
    } else {
        uebernimm(text);
    }
}

void Textfeld::wertGesetzt()
{
    m_vorher.reset();
    veralte();
}

void Textfeld::veralte()
{
    if (!m_veraltet) {
        m_veraltet = true;
        QCoreApplication::postEvent(this, new QEvent(auffrischen));
    }
}

/// An entry for a number says how numbers are typed, unless it has something of its own to say.
void Textfeld::erklaeren()
{
    const QString hinweis = zahlenhinweis();
    if (nimmtZahl() && toolTip().isEmpty()) {
        setToolTip(hinweis);
    } else if (!nimmtZahl() && toolTip() == hinweis) {
        setToolTip(QString());
    }
}

bool Textfeld::nimmtZahl() const
{
    return m_editable && (m_decimals >= 0 || nurZahlen());
}

QString Textfeld::zahlText(double zahl) const
{
    if (m_decimals < 0) {
        return nurZahlen() ? zahlenform().toString(zahl, 'f', QLocale::FloatingPointShortest)
                           : Wertehalter::zahlText(zahl);
    }
    if (!m_trailingZeros && zahl == std::trunc(zahl)) {
        return wertText(zahl, 0);
    }
    return wertText(zahl, m_decimals, m_significantDigits);
}

QString Textfeld::angezeigterText(bool tippend) const
{
    if (m_uebersetzt && !haeltZahl()) {
        return QCoreApplication::translate("Mahlberg", stringValue().toUtf8().constData());
    }
    return haeltZahl() && !m_unit.isEmpty() && !tippend
               ? stringValue() + QChar(QChar::Nbsp) + m_unit
               : stringValue();
}

/// Brings the shown text up to date. A text that the user is typing is never touched.
void Textfeld::zeigen()
{
    if (m_veraltet) {
        m_veraltet = false;
        const QString neu = angezeigterText(m_editable && hasFocus());
        if (neu != text()) {
            setText(neu);
            if (hasFocus() && nimmtZahl()) {
                markiereZahl(); // what is typed next is another number
            } else {
                setCursorPosition(0);
            }
        }
    }
}

bool Textfeld::event(QEvent *event)
{
    if (event->type() == auffrischen) {
        zeigen();
        return true;
    }
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && schneidetAb(*this)) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), text(), this);
        return true;
    }
    if (event->type() == QEvent::ShortcutOverride &&
        !nimmtTaste(*static_cast<QKeyEvent *>(event))) {
        event->ignore();
        return true;
    }
    return Zahlenzeile::event(event);
}

/// A field in which nothing was typed leaves the keys for taking back and repeating to the window.
bool Textfeld::nimmtTaste(const QKeyEvent &taste) const
{
    return !(taste.matches(QKeySequence::Undo) && !isUndoAvailable()) &&
           !(taste.matches(QKeySequence::Redo) && !isRedoAvailable());
}

void Textfeld::paintEvent(QPaintEvent *event)
{
    zeigen();
    Zahlenzeile::paintEvent(event);
    if (m_erreichbar && !m_editable && hasFocus()) {
        QPainter painter(this);
        maleFokus(painter, rect(), palette()); // as around an entry
    }
}

void Textfeld::focusInEvent(QFocusEvent *event)
{
    if (m_editable && haeltZahl()) {
        m_veraltet = true;
        zeigen(); // without its unit, before the number is taken
    }
    Zahlenzeile::focusInEvent(event);
    if (!m_editable) {
        deselect(); // a value that can't be typed over keeps its colour
    }
}

void Textfeld::focusOutEvent(QFocusEvent *event)
{
    Zahlenzeile::focusOutEvent(event);
    wertGesetzt();
}

/// Wide enough for what such a field usually holds or is told to hold, and as high with a frame as
/// without: nothing moves when a display becomes an entry.
QSize Textfeld::sizeHint() const
{
    const QString breitestes = m_muster.isEmpty() ? QStringLiteral("00000,0 kcal") : m_muster;
    return {fontMetrics().horizontalAdvance(breitestes) + 16, fontMetrics().height() + 8};
}

QSize Textfeld::minimumSizeHint() const
{
    const QSize groesse = sizeHint();
    return {m_muster.isEmpty() ? groesse.width() / 2 : groesse.width(), groesse.height()};
}
