#pragma once

#include "Wertehalter.h"

#include <QComboBox>

/// A chooser whose value is its text: chosen from the list or, where it is editable, typed freely.
/// `auswahl` fills the list from one line, entries parted by "|".
class Auswahlfeld : public QComboBox, public Wertehalter
{
    Q_OBJECT
    Q_PROPERTY(QString auswahl READ auswahl WRITE setAuswahl)

public:
    explicit Auswahlfeld(QWidget *parent = nullptr);

    QString auswahl() const;
    void setAuswahl(const QString &eintraege);

Q_SIGNALS:
    /// The user has chosen an entry, or typed a text and left the field or pressed Return.
    void betaetigt();

protected:
    void wertGesetzt() override;

private:
    void textGeaendert(const QString &text);
};
