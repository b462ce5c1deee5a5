#include "Feldauskunft.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QStylePainter>
#include <QTextLayout>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace {

/// A text is wrapped before it gets wider than this, in pixels without the frame.
constexpr int textbreite = 400;

/// Between the field and its text, in pixels.
constexpr int abstand = 4;

/// Looks like the system's tool tips, but stays until the keyboard goes on: those go as soon as the
/// mouse stirs.
class Fahne : public QLabel
{
public:
    explicit Fahne(QWidget *feld) : QLabel(feld, Qt::ToolTip)
    {
        setObjectName(QStringLiteral("fahne"));
        setForegroundRole(QPalette::ToolTipText);
        setBackgroundRole(QPalette::ToolTipBase);
        setFont(QToolTip::font());
        setTextFormat(Qt::RichText);
        setMargin(1 + style()->pixelMetric(QStyle::PM_ToolTipLabelFrameWidth, nullptr, this));
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QStylePainter painter(this);
        QStyleOptionFrame rahmen;
        rahmen.initFrom(this);
        painter.drawPrimitive(QStyle::PE_PanelTipLabel, rahmen);
        painter.end();
        QLabel::paintEvent(event);
    }
};

/// A line in as many pieces as its width takes. The system's labels know no greatest width.
QStringList umbrochen(const QString &zeile, const QFont &schrift)
{
    QTextLayout satz(zeile, schrift);
    QTextOption umbruch;
    umbruch.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    satz.setTextOption(umbruch);
    QStringList stuecke;
    satz.beginLayout();
    for (QTextLine stueck = satz.createLine(); stueck.isValid(); stueck = satz.createLine()) {
        stueck.setLineWidth(textbreite);
        stuecke << zeile.mid(stueck.textStart(), stueck.textLength()).trimmed().toHtmlEscaped();
    }
    satz.endLayout();
    return stuecke;
}

/// The lines below a bold heading.
QString gesetzt(const QStringList &zeilen)
{
    QFont schrift = QToolTip::font();
    schrift.setBold(true);
    const QString neueZeile = QStringLiteral("<br>");
    QStringList absaetze = {
        QStringLiteral("<b>%1</b>").arg(umbrochen(zeilen.first(), schrift).join(neueZeile))};
    schrift.setBold(false);
    for (const QString &zeile : zeilen.mid(1)) {
        absaetze << umbrochen(zeile, schrift);
    }
    return QStringLiteral("<p style='white-space:pre'>%1</p>").arg(absaetze.join(neueZeile));
}

} // namespace

Feldauskunft::Feldauskunft(QWidget *feld, Frage frage)
    : QObject(feld)
    , m_feld(feld)
    , m_frage(std::move(frage))
    , m_fahne(new Fahne(feld))
{
    m_ruhe.setSingleShot(true);
    connect(&m_ruhe, &QTimer::timeout, this, &Feldauskunft::zeigeAmFeld);
    m_feld->installEventFilter(this);
    QAccessible::installActivationObserver(this);
}

Feldauskunft::~Feldauskunft()
{
    QAccessible::removeActivationObserver(this);
}

void Feldauskunft::veralte()
{
    if (anMaus() || m_fahne->isVisible()) {
        verstecke();
    }
    if (!m_veraltet && m_vorgelesen) {
        m_veraltet = true;
        QMetaObject::invokeMethod(this, &Feldauskunft::beschreibe, Qt::QueuedConnection);
    }
}

/// A screen reader may be started when the window has long been open.
void Feldauskunft::accessibilityActiveChanged(bool active)
{
    m_vorgelesen = active;
    veralte();
}

void Feldauskunft::beschreibe()
{
    m_veraltet = false;
    m_feld->setAccessibleDescription(m_frage().join(u'\n'));
}

bool Feldauskunft::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_feld) {
        return feldereignis(event);
    }
    stoerung(watched, event);
    return false;
}

bool Feldauskunft::feldereignis(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ToolTip:
        zeigeAnMaus(static_cast<QHelpEvent *>(event)->globalPos());
        return true;
    case QEvent::FocusIn:
        if (m_vorgelesen) {
            beschreibe(); // before it is read out
        }
        m_ruhe.start(m_feld->style()->styleHint(QStyle::SH_ToolTip_WakeUpDelay, nullptr, m_feld));
        return false;
    case QEvent::FocusOut:
    case QEvent::Hide:
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
        verstecke();
        return false;
    case QEvent::ShortcutOverride:
        return beansprucht(static_cast<QKeyEvent *>(event));
    case QEvent::KeyPress:
        return taste(static_cast<QKeyEvent *>(event)->key());
    default:
        return false;
    }
}

/// The window opens the handbook with F1. Where there is something to explain, the field is first.
bool Feldauskunft::beansprucht(QKeyEvent *event) const
{
    const bool meine = event->key() == Qt::Key_F1 && !m_frage().isEmpty();
    if (meine) {
        event->accept();
    }
    return meine;
}

bool Feldauskunft::taste(int taste)
{
    if (taste == Qt::Key_F1) {
        return zeigeAmFeld();
    }
    if (taste == Qt::Key_Escape) {
        const bool gesehen = anMaus() || m_fahne->isVisible();
        verstecke();
        return gesehen;
    }
    return false;
}

/// What takes the system's tool tips away, or the field away from its text, takes this one as well.
void Feldauskunft::stoerung(const QObject *watched, const QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
        verstecke();
        break;
    case QEvent::Move:
    case QEvent::Resize:
        if (watched == m_feld->window()) {
            verstecke();
        }
        break;
    default:
        break;
    }
}

/// The mouse's text goes by itself after a while, and another one may have taken its place.
bool Feldauskunft::anMaus() const
{
    return QToolTip::isVisible() && QToolTip::text() == m_anMaus;
}

void Feldauskunft::zeigeAnMaus(const QPoint &ort)
{
    if (m_fahne->isVisible()) {
        return; // it stands beside the field already
    }
    const QStringList zeilen = m_frage();
    m_anMaus = zeilen.isEmpty() ? QString() : gesetzt(zeilen);
    QToolTip::showText(ort, m_anMaus, m_feld);
}

/// False when there is nothing to explain.
bool Feldauskunft::zeigeAmFeld()
{
    verstecke();
    const QStringList zeilen = m_frage();
    if (zeilen.isEmpty()) {
        return false;
    }
    m_fahne->setText(gesetzt(zeilen));
    m_fahne->adjustSize();
    m_fahne->move(platz());
    m_fahne->show();
    qApp->installEventFilter(this);
    return true;
}

/// Below the field, or above it where the screen ends.
QPoint Feldauskunft::platz() const
{
    const QRect schirm = m_feld->screen()->availableGeometry();
    const QRect feld(m_feld->mapToGlobal(QPoint(0, 0)), m_feld->size());
    const int unten = feld.bottom() + abstand;
    const bool passt = unten + m_fahne->height() <= schirm.bottom();
    const int ganzRechts = schirm.right() - m_fahne->width();
    return {std::max(schirm.left(), std::min(feld.left(), ganzRechts)),
            passt ? unten : feld.top() - abstand - m_fahne->height()};
}

void Feldauskunft::verstecke()
{
    m_ruhe.stop();
    qApp->removeEventFilter(this);
    m_fahne->hide();
    if (anMaus()) {
        QToolTip::hideText();
    }
}
