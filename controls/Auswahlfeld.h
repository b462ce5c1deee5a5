#pragma once

#include "Wertehalter.h"

#include <QComboBox>

/// A chooser whose value is its text: chosen from the list or, where `freitext` is on, typed
/// freely. `auswahl` fills the list from one line, entries parted by "|".
class Auswahlfeld : public QComboBox, public Wertehalter
{
    Q_OBJECT
    Q_PROPERTY(QString auswahl READ auswahl WRITE setAuswahl)
    /// True: any text can be typed and counts letter by letter, except that one which differs from
    /// an entry in upper and lower case alone becomes the entry. Entries that contain what is typed
    /// are offered below, whatever their case, and one of them counts once it is picked.
    /// An empty entry is listed under the field's placeholder.
    Q_PROPERTY(bool freitext READ freitext WRITE setFreitext)

public:
    explicit Auswahlfeld(QWidget *parent = nullptr);

    QString auswahl() const;
    void setAuswahl(const QString &eintraege);

    bool freitext() const { return isEditable(); }
    void setFreitext(bool frei);

    /// Names that can be typed like entries but are not listed, such as those of another language.
    void setWeitereNamen(const QStringList &namen) { m_weitereNamen = namen; }

Q_SIGNALS:
    /// The user has chosen an entry, or typed a text and left the field or pressed Return.
    void betaetigt();

protected:
    void wertGesetzt() override;

private:
    void textGeaendert(const QString &text);
    void meldeAuswahl();
    void meldeEingabe();
    QString nameFuer(const QString &text) const;

    QStringList m_weitereNamen;
};
