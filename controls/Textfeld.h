#pragma once

#include "Textfarbe.h"
#include "Wertehalter.h"
#include "Zahlenzeile.h"

#include <optional>

/// A field that shows a value, or takes one from the user when it is editable. A shown number
/// carries its unit; while the user types in it, the number stands alone.
class Textfeld : public Zahlenzeile, public Wertehalter
{
    Q_OBJECT
    /// False: a flat display that is no stop of the Tab key unless it is `erreichbar`. True: an
    /// entry field.
    Q_PROPERTY(bool editable READ isEditable WRITE setEditable)
    /// True: the Tab key stops here while the field is a display as well, and a frame shows where
    /// the keyboard is: there is more to learn about the value than stands in the field.
    Q_PROPERTY(bool erreichbar READ isErreichbar WRITE setErreichbar)
    /// True: nothing but a number can be typed, with a comma or a point before the decimals; a mark
    /// that turns out to part thousands goes away. What was typed is shown to its last digit unless
    /// `decimals` says otherwise.
    Q_PROPERTY(bool nurZahlen READ nurZahlen WRITE setNurZahlen)
    /// Digits behind the comma of a shown number, more where it would look like 0; −1 writes it as
    /// short as it is.
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    /// Small numbers get more digits behind the comma until this many that matter are seen
    /// (0: never); so 0.012 mg does not show as 0.
    Q_PROPERTY(int significantDigits READ significantDigits WRITE setSignificantDigits)
    /// False: a whole number is shown without digits behind the comma.
    Q_PROPERTY(bool trailingZeros READ trailingZeros WRITE setTrailingZeros)
    /// The unit behind a shown number, such as "mg"; empty for none.
    Q_PROPERTY(QString unit READ unit WRITE setUnit)
    /// True: a held text is shown in the language of the windows. The field still holds the German
    /// one, for rules that read it back.
    Q_PROPERTY(bool uebersetzt READ uebersetzt WRITE setUebersetzt)
    /// The widest text that the field is to show whole; empty for what such a field usually holds.
    /// A field with one is never narrower.
    Q_PROPERTY(QString muster READ muster WRITE setMuster)

public:
    explicit Textfeld(QWidget *parent = nullptr);

    bool isEditable() const { return m_editable; }
    void setEditable(bool editable);
    bool isErreichbar() const { return m_erreichbar; }
    void setErreichbar(bool erreichbar);
    bool nurZahlen() const { return validator() != nullptr; }
    void setNurZahlen(bool nurZahlen);
    int decimals() const { return m_decimals; }
    void setDecimals(int decimals);
    int significantDigits() const { return m_significantDigits; }
    void setSignificantDigits(int digits);
    bool trailingZeros() const { return m_trailingZeros; }
    void setTrailingZeros(bool zeros);
    QString unit() const { return m_unit; }
    void setUnit(const QString &unit);
    bool uebersetzt() const { return m_uebersetzt; }
    void setUebersetzt(bool uebersetzt);
    QString muster() const { return m_muster; }
    void setMuster(const QString &muster);

    Textfarbe textColor() const { return m_farbe; }
    void setTextColor(Textfarbe farbe);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user has typed a value and left the field or pressed Return.
    void betaetigt();

protected:
    void wertGesetzt() override;
    QString zahlText(double zahl) const override;
    bool nimmtZahl() const override;
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    bool nimmtTaste(const QKeyEvent &taste) const;
    void veralte();
    void tippe(const QString &text);
    void zeigen();
    void einkleiden();
    void erklaeren();
    QString angezeigterText() const;

    bool m_editable = false;
    bool m_erreichbar = false;
    int m_decimals = -1;
    int m_significantDigits = 0;
    bool m_trailingZeros = true;
    QString m_unit;
    bool m_uebersetzt = false;
    QString m_muster;
    Textfarbe m_farbe = Textfarbe::Standard;
    bool m_veraltet = false;        ///< the shown text is older than the held value
    std::optional<double> m_vorher; ///< the number before the one that is being typed
};
