#pragma once

#include "Rezeptwertung.h"

#include <QWidget>

class QComboBox;
class QLabel;

/// The rating of a dish for one condition: as proposed, or another one, and why it is proposed.
class Wertungswahl : public QWidget
{
    Q_OBJECT

public:
    explicit Wertungswahl(Wertung wertung, QWidget *parent = nullptr);

    /// What the rules say; absent while the dish can't be reckoned.
    void schlageVor(const std::optional<Gerichtsgroessen> &gericht);
    /// Chooses a rating; null: as proposed. A text that is no rating can be kept, too.
    void waehle(const QString &urteil);
    /// The rating that was chosen by hand; null: as proposed.
    QString gewaehlte() const;

    /// Another language is spoken: all texts anew.
    void folgeSprache();

Q_SIGNALS:
    void geaendert();

private:
    void fuelle(const QString &gewaehlte);
    void begruende();

    Wertung m_wertung;
    std::optional<Gerichtsgroessen> m_gericht;
    QLabel *m_name;
    QComboBox *m_wahl;
    QLabel *m_gruende;
};
