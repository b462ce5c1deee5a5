#pragma once

#include "Einblickblatt.h"
#include "Referenzposten.h"

#include <array>

class QScrollArea;

/// What counts of each nutrient, against what a day should hold: by the set of reference values
/// that was chosen, or by the general needs.
class Referenzblatt : public Einblickblatt
{
    Q_OBJECT

public:
    explicit Referenzblatt(QWidget *parent = nullptr);

    void zeige(const Einblickstand &stand) override;
    void folgeSprache() override;

    const Referenzposten &posten(Naehrwert wert) const { return *m_posten[stelle(wert)]; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void baue();
    void zeigeAlles();
    Postenangabe angabe(Naehrwert wert) const;
    QString worteFuer(const Postenangabe &angabe, Naehrwert wert, const Stoffsumme &summe) const;
    QStringList auskunftFuer(const Postenangabe &angabe, Naehrwert wert,
                             const Stoffsumme &summe) const;
    void gleicheSpalten();
    void geheZu(int reihe);
    QString kopfworte() const;

    Einblickstand m_stand;
    QLabel *m_kopf;
    QScrollArea *m_rolle;
    std::array<Referenzposten *, anzahlNaehrwerte> m_posten = {};
    int m_reihe = 0; ///< which row the keyboard is on
};
