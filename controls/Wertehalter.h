#pragma once

#include "Zahlenform.h"

#include <QString>

#include <variant>

/// The number that a typed text starts with. A comma and a point both mean the decimals, in every
/// language: 12.5 is typed at the number pad of a German keyboard, and 1.500 is 1,5. Where both
/// stand, the last one means the decimals and the other one parts thousands; a mark that stands
/// more than once can only part thousands, and so do blanks between digits. A unit or anything else
/// behind the number is passed over. Text that starts with no number, such as "-", is 0. More than
/// a number can hold is infinite, so that nobody takes it for nothing.
double zahlAusText(const QString &text);

/// Takes out of digits that are being typed what can only part thousands: "1.234," becomes "1234,".
/// `stelle` is the place of the cursor and moves along. False when the marks don't part groups of
/// three digits: such a mark was hit by mistake.
bool entferneTausender(QString &ziffern, int &stelle);

/// What every control of the program can do with its value: hold a number or a text, give it back
/// as either, and show it. A control holds exactly what it was given; its number format only
/// changes what is painted. Setting is cheap: an action may set a field a thousand times before
/// the next frame, so the text is made when it is needed.
class Wertehalter
{
public:
    virtual ~Wertehalter() = default;

    /// The held number; a held text is read with `zahlAusText`.
    double doubleValue() const;
    float floatValue() const { return static_cast<float>(doubleValue()); }

    /// The held number with its fraction dropped. Beyond the range of an int it is the nearest
    /// int, and not-a-number is 0.
    int intValue() const;

    /// The held text, or the held number as this control writes numbers.
    QString stringValue() const;

    void setDoubleValue(double zahl);
    void setFloatValue(float zahl) { setDoubleValue(static_cast<double>(zahl)); }
    void setIntValue(int zahl) { setDoubleValue(static_cast<double>(zahl)); }
    void setStringValue(const QString &text);

    /// True when a number is held, false when a text is.
    bool haeltZahl() const { return std::holds_alternative<double>(m_wert); }

protected:
    Wertehalter() = default;
    Wertehalter(const Wertehalter &) = default;
    Wertehalter &operator=(const Wertehalter &) = default;

    /// Called after each change from the program's side; the control shows the new value.
    virtual void wertGesetzt() = 0;

    /// How this control writes a number.
    virtual QString zahlText(double zahl) const;

    /// Takes over what the user did with the control, without showing it again.
    void uebernimm(double zahl) { m_wert = zahl; }
    void uebernimm(const QString &text) { m_wert = text; }

private:
    std::variant<double, QString> m_wert = QString();
};
