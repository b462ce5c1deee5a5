// The meal plan on paper: a simple list, a detailed one, or the evaluation as it looks.

#include "Planmodul.h"

#include "Druckfuss.h"
#include "Papierbild.h"
#include "Plandruckwerte.h"
#include "Planmodulprint.h"
#include "Spaltenumbruch.h"
#include "Zeichenkettentabelle.h"

#include <algorithm>
#include <memory>

namespace {

QString planname()
{
    return localizedString(QStringLiteral("Mahlzeitenplan"));
}

/// A list that is laid out anew for every paper, and not for every page.
class Papierliste
{
public:
    explicit Papierliste(std::function<Planmodulprint(const QPageLayout &)> machen)
        : m_machen(std::move(machen))
    {
    }

    const Planmodulprint &auf(const QPageLayout &seite)
    {
        if (!m_liste || m_seite != seite) {
            m_seite = seite;
            m_liste = m_machen(seite);
        }
        return *m_liste;
    }

private:
    std::function<Planmodulprint(const QPageLayout &)> m_machen;
    QPageLayout m_seite;
    std::optional<Planmodulprint> m_liste;
};

Druckauftrag listenauftrag(const QString &form,
                           const std::function<Planmodulprint(const QPageLayout &)> &machen)
{
    const auto liste = std::make_shared<Papierliste>(machen);
    return {.titel = planname(),
            .seitenzahl = [liste](const QPageLayout &seite) { return liste->auf(seite).pages; },
            .male = [liste](QPainter &maler, const QPageLayout &seite,
                            int nummer) { liste->auf(seite).maleSeite(maler, nummer); },
            .form = form};
}

/// The first time there is nothing to refresh, and the copy is made; later ones only empty it.
template <typename Liste>
void frischeAuf(std::optional<Liste> &kopie, const Liste &jetzt)
{
    kopie = kopie ? Liste() : jetzt;
}

} // namespace

/// The form that the user wants, counted from 0 as the buttons stand; below 0 when it is none.
int Planmodul::frageNachForm(const QString &text, const QString &erklaerung) const
{
    return m_tueren.melde(m_fenster,
                          {.text = text,
                           .erklaerung = erklaerung,
                           .knoepfe = {localizedString(QStringLiteral("Einfache Liste")),
                                       localizedString(QStringLiteral("Detaillierte Liste")),
                                       localizedString(QStringLiteral("Grafische Darstellung"))},
                           .verwerfbar = true});
}

void Planmodul::druckenentscheidung()
{
    void (Planmodul::*const formen[])() = {&Planmodul::drucken, &Planmodul::drucken3,
                                           &Planmodul::drucken2};
    const int wahl = frageNachForm(localizedString(QStringLiteral("Drucken")),
                                   localizedString(QStringLiteral("Was moechten Sie drucken ? ")));
    if (wahl >= 0 && wahl < std::ssize(formen)) {
        (this->*formen[wahl])();
    }
}

void Planmodul::alsPdfSichern()
{
    Druckauftrag (Planmodul::*const formen[])() = {
        &Planmodul::einfacheListe, &Planmodul::detaillierteListe, &Planmodul::grafischeDarstellung};
    const int wahl =
        frageNachForm(localizedString(QStringLiteral("Als PDF sichern")),
                      localizedString(QStringLiteral("Was möchten Sie als PDF sichern?")));
    if (wahl >= 0 && wahl < std::ssize(formen) && m_tueren.alsPdf) {
        m_tueren.alsPdf(m_fenster, mitFuss((this->*formen[wahl])()), [] {});
    }
}

void Planmodul::drucken()
{
    drucke(einfacheListe());
}

void Planmodul::drucken2()
{
    drucke(grafischeDarstellung());
}

void Planmodul::drucken3()
{
    drucke(detaillierteListe());
}

Druckauftrag Planmodul::einfacheListe()
{
    kalorienuebergabe = druckwerte(zeilen(), Naehrwert::kal);
    frischeAuf(plancopy, PlanArray);
    frischeAuf(mengencopy, mengenarray);
    frischeAuf(kaloriencopy, kalorienuebergabe);
    return listenauftrag(localizedString(QStringLiteral("Liste")),
                         [namen = PlanArray, mengen = mengenarray, kals = kalorienuebergabe,
                          soll = klient.bedarf](const QPageLayout &seite) {
                             return Planmodulprint::initWithPeople(namen, mengen, kals, soll,
                                                                   seite);
                         });
}

Druckauftrag Planmodul::grafischeDarstellung()
{
    window();                 // makes what is to be printed
    QList<Papierbild> bilder; // for paper across and upright
    for (const auto form : {Spaltenumbruch::Form::Nebeneinander, Spaltenumbruch::Form::Geteilt}) {
        m_spaltenumbruch->stelle(form);
        bilder << Papierbild(*boxinhalt);
    }
    m_spaltenumbruch->ordne();
    Druckauftrag auftrag = bildauftrag({planname()}, bilder);
    auftrag.form = localizedString(QStringLiteral("Auswertung"));
    return auftrag;
}

Druckauftrag Planmodul::detaillierteListe()
{
    const std::vector<Planzeile> reihe = zeilen();
    for (const auto &zeile : naehrwerte) {
        this->*naehrwertuebergaben[stelle(zeile.wert)] = druckwerte(reihe, zeile.wert);
    }
    for (const auto &zeile : wertungen) {
        this->*wertungsuebergaben[stelle(zeile.wertung)] = druckwertungen(reihe, zeile.wertung);
    }
    std::array<Zahlen, Planmodulprint::anzahlNaehrstoffe> naehrstoffe; // all values but the energy
    std::transform(naehrwertuebergaben.begin() + 1, naehrwertuebergaben.end(), naehrstoffe.begin(),
                   [this](auto liste) { return this->*liste; });
    std::array<QStringList, anzahlWertungen> urteile;
    std::transform(wertungsuebergaben.begin(), wertungsuebergaben.end(), urteile.begin(),
                   [this](auto liste) { return this->*liste; });
    return listenauftrag(localizedString(QStringLiteral("Liste mit Nährstoffen")),
                         [namen = PlanArray, mengen = mengenarray, kals = kalorienuebergabe,
                          soll = klient.bedarf, naehrstoffe, urteile](const QPageLayout &seite) {
                             return Planmodulprint::initWithPeople2(namen, mengen, kals, soll,
                                                                    naehrstoffe, urteile, seite);
                         });
}

void Planmodul::drucke(const Druckauftrag &auftrag)
{
    if (m_tueren.drucke) {
        m_tueren.drucke(m_fenster, mitFuss(auftrag));
    }
}
