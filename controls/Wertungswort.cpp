#include "Wertungswort.h"

#include "Textfeld.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>
#include <array>

namespace {

struct Bedeutung
{
    char16_t zeichen;
    const char *wort; ///< key into the string table
};

constexpr std::array<Bedeutung, 3> bedeutungen = {{
    {u'+', QT_TRANSLATE_NOOP("Mahlberg", "geeignet")},
    {u'0', QT_TRANSLATE_NOOP("Mahlberg", "neutral")},
    {u'-', QT_TRANSLATE_NOOP("Mahlberg", "ungeeignet")},
}};

QString uebersetzt(const Bedeutung &bedeutung)
{
    return QCoreApplication::translate("Mahlberg", bedeutung.wort);
}

} // namespace

Wertungswort::Wertungswort(QWidget *parent) : QLabel(parent) {}

QString Wertungswort::wortFuer(const QString &zeichen)
{
    for (const Bedeutung &bedeutung : bedeutungen) {
        if (zeichen == QChar(bedeutung.zeichen)) {
            return uebersetzt(bedeutung);
        }
    }
    return {};
}

void Wertungswort::folge(Textfeld &feld)
{
    m_feld = &feld;
    feld.installEventFilter(this);
    connect(&feld, &QLineEdit::textChanged, this, &Wertungswort::sage);
    sage();
}

bool Wertungswort::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_feld &&
        (event->type() == QEvent::PaletteChange || event->type() == QEvent::ShowToParent ||
         event->type() == QEvent::HideToParent || event->type() == QEvent::FontChange)) {
        sage();
    }
    return QLabel::eventFilter(watched, event);
}

void Wertungswort::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::LanguageChange && m_feld != nullptr) {
        sage();
    }
}

void Wertungswort::sage()
{
    const QString wort = wortFuer(m_feld->text());
    setText(wort);
    QPalette kleid;
    kleid.setColor(QPalette::WindowText, m_feld->palette().color(QPalette::Text));
    setPalette(kleid);
    teilePlatzZu(!wort.isEmpty());
    setVisible(!wort.isEmpty() && !m_feld->isHidden());
}

/// A field with a sign is as wide as the sign and the frame of an entry around it. Any other text
/// gets what it needs, up to a dozen letters.
void Wertungswort::teilePlatzZu(bool mitWort)
{
    constexpr int rahmen = 10;
    constexpr int meisteBuchstaben = 12;
    const QFontMetrics schrift = m_feld->fontMetrics();
    const int bedarf = schrift.horizontalAdvance(m_feld->text()) + rahmen;
    const int meistens = schrift.averageCharWidth() * meisteBuchstaben;
    m_feld->setMinimumWidth(mitWort ? 0 : std::min(bedarf, meistens));
    m_feld->setMaximumWidth(mitWort ? schrift.horizontalAdvance(u'+') + rahmen : QWIDGETSIZE_MAX);
}

QSize Wertungswort::sizeHint() const
{
    QSize groesse = QLabel::sizeHint();
    for (const Bedeutung &bedeutung : bedeutungen) {
        const int breite = fontMetrics().horizontalAdvance(uebersetzt(bedeutung));
        groesse.setWidth(std::max(groesse.width(), breite));
    }
    return groesse;
}

QSize Wertungswort::minimumSizeHint() const
{
    return sizeHint();
}
