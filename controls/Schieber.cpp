#include "Schieber.h"

#include "Zahlenzeile.h"

#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QSlider>

#include <algorithm>
#include <cmath>

namespace {

const QEvent::Type auffrischen = static_cast<QEvent::Type>(QEvent::registerEventType());

/// The number beside the slider. The comma of the keyboard and the point of its number pad both
/// mean the decimals, in every language: taken for thousands, 1.85 m would become 1 m, and 1.9
/// hours 19. Where whole numbers are wanted, 12.5 is rounded rather than becoming 125.
class Zahleneingabe : public QDoubleSpinBox
{
public:
    explicit Zahleneingabe(QWidget *parent) : QDoubleSpinBox(parent)
    {
        setLineEdit(new Zahlenzeile(this));
        setToolTip(zahlenhinweis());
    }

    double valueFromText(const QString &text) const override
    {
        const double zahl = zahlAusText(ohneEinheit(text));
        return decimals() > 0 ? zahl : std::round(zahl);
    }

protected:
    QValidator::State validate(QString &text, int &stelle) const override
    {
        QString zahl = ohneEinheit(text);
        const QString einheit = text.mid(zahl.size());
        entferneTausender(zahl, stelle);
        text = zahl + einheit;
        if (decimals() > 0 || !istBruch(zahl)) {
            return pruefe(text, stelle);
        }
        const double gerundet = valueFromText(text);
        if (gerundet > maximum()) {
            return QValidator::Invalid;
        }
        return zahl.size() == 1 || gerundet < minimum() ? QValidator::Intermediate
                                                        : QValidator::Acceptable;
    }

private:
    /// The mark stays the one that was typed: with another behind it, it may yet part thousands.
    QValidator::State pruefe(QString &text, int &stelle) const
    {
        static const QRegularExpression marken(QStringLiteral("[.,]"));
        const QString komma = locale().decimalPoint();
        const qsizetype ort = ohneEinheit(text).indexOf(marken);
        if (ort < 0) {
            return QDoubleSpinBox::validate(text, stelle);
        }
        const QString getippt = text.mid(ort, 1);
        text.replace(ort, 1, komma);
        const QValidator::State urteil = QDoubleSpinBox::validate(text, stelle);
        if (text.mid(ort, 1) == komma) {
            text.replace(ort, 1, getippt);
        }
        return urteil;
    }

    QString ohneEinheit(const QString &text) const
    {
        return text.endsWith(suffix()) ? text.chopped(suffix().size()) : text;
    }

    static bool istBruch(const QString &zahl)
    {
        static const QRegularExpression form(QStringLiteral("^\\d*[.,]\\d*$"));
        return form.match(zahl).hasMatch();
    }
};

} // namespace

Schieber::Schieber(QWidget *parent)
    : QWidget(parent)
    , m_regler(new QSlider(Qt::Horizontal, this))
    , m_eingabe(new Zahleneingabe(this))
{
    auto *zeile = new QHBoxLayout(this);
    zeile->setContentsMargins(0, 0, 0, 0);
    zeile->addWidget(m_regler, 1);
    zeile->addWidget(m_eingabe);
    m_eingabe->setKeyboardTracking(false); // "30" is one amount, not first 3 and then 30
    m_eingabe->setAlignment(Qt::AlignRight);
    // Sliders below one another end in line, whatever their numbers and units.
    m_eingabe->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("00000,00 Jahre")));
    setFocusProxy(m_regler);
    einteilen();
    connect(m_regler, &QSlider::valueChanged, this, &Schieber::reglerBewegt);
    // A held value beyond the range rests at the slider's end; a key or click there takes the end.
    connect(m_regler, &QSlider::actionTriggered, this, [this] {
        const bool ausserhalb = doubleValue() < m_minimum || doubleValue() > m_maximum;
        if (ausserhalb && m_regler->sliderPosition() == m_regler->value()) {
            reglerBewegt(m_regler->value());
        }
    });
    connect(m_eingabe, &QDoubleSpinBox::valueChanged, this, &Schieber::zahlEingegeben);
    setDoubleValue(0);
}

void Schieber::setMinimumValue(double minimum)
{
    m_minimum = minimum;
    einteilen();
}

void Schieber::setMaximumValue(double maximum)
{
    m_maximum = maximum;
    einteilen();
}

void Schieber::setStepValue(double step)
{
    m_step = step > 0 ? step : 1;
    einteilen();
}

void Schieber::setDecimals(int decimals)
{
    m_decimals = decimals;
    einteilen();
}

void Schieber::setUnit(const QString &unit)
{
    m_unit = unit;
    m_eingabe->setSuffix(unit.isEmpty() ? QString() : QChar(QChar::Nbsp) + unit);
    beschreibe();
}

void Schieber::einteilen()
{
    const QSignalBlocker reglerStill(m_regler);
    const QSignalBlocker eingabeStill(m_eingabe);
    m_regler->setRange(0, static_cast<int>(std::lround((m_maximum - m_minimum) / m_step)));
    m_regler->setPageStep(std::max(1, m_regler->maximum() / 10));
    m_eingabe->setDecimals(m_decimals);
    m_eingabe->setSingleStep(m_step);
    wertGesetzt();
}

void Schieber::wertGesetzt()
{
    if (!m_veraltet) {
        m_veraltet = true;
        QCoreApplication::postEvent(this, new QEvent(auffrischen));
        update();
    }
}

/// Puts both controls to the held value. The number beside the slider shows a value beyond the
/// range as it stands; the slider itself then rests at its end.
void Schieber::zeigen()
{
    if (!m_veraltet) {
        return;
    }
    m_veraltet = false;
    const double zahl = gezeigteZahl();
    const QSignalBlocker reglerStill(m_regler);
    const QSignalBlocker eingabeStill(m_eingabe);
    const double schritte = (std::clamp(zahl, m_minimum, m_maximum) - m_minimum) / m_step;
    m_regler->setValue(static_cast<int>(std::lround(schritte)));
    m_eingabe->setRange(std::min(m_minimum, zahl), std::max(m_maximum, zahl));
    m_eingabe->setValue(zahl);
    beschreibe();
}

/// By itself the slider would be read out as the number of its step, and the number without its
/// unit. What can't be used says why instead.
void Schieber::beschreibe()
{
    for (QWidget *teil : {static_cast<QWidget *>(m_regler), static_cast<QWidget *>(m_eingabe)}) {
        if (teil->isEnabled()) {
            teil->setAccessibleDescription(m_eingabe->text());
        }
    }
}

double Schieber::gezeigteZahl() const
{
    const double gehalten = doubleValue();
    return std::isfinite(gehalten) ? gehalten : m_minimum;
}

QString Schieber::textAufPapier() const
{
    return m_eingabe->textFromValue(gezeigteZahl()) + m_eingabe->suffix();
}

void Schieber::reglerBewegt(int stellung)
{
    // Counting steps from whole multiples keeps 1.75 m from becoming 1.7500000000000002.
    const double zehner = std::pow(10.0, m_decimals);
    const double zahl = std::round((m_minimum + stellung * m_step) * zehner) / zehner;
    setDoubleValue(zahl);
    Q_EMIT betaetigt();
}

void Schieber::zahlEingegeben(double zahl)
{
    setDoubleValue(std::clamp(zahl, m_minimum, m_maximum));
    Q_EMIT betaetigt();
}

QString Schieber::zahlText(double zahl) const
{
    return zahlenform().toString(zahl, 'g', QLocale::FloatingPointShortest);
}

bool Schieber::event(QEvent *event)
{
    if (event->type() == auffrischen) {
        zeigen();
        return true;
    }
    if (event->type() == QEvent::Show) {
        // Those who can't see the two controls hear their names, not the name of their frame.
        m_regler->setAccessibleName(accessibleName());
        m_eingabe->setAccessibleName(accessibleName());
    }
    if (event->type() == QEvent::EnabledChange) {
        beschreibe();
    }
    return QWidget::event(event);
}

void Schieber::paintEvent(QPaintEvent *event)
{
    zeigen();
    QWidget::paintEvent(event);
}
