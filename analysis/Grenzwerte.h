#pragma once

#include "Referenzperson.h"
#include "Tagesgroesse.h"
#include "Wertungsregeln.h"

#include <QList>
#include <QString>

#include <optional>
#include <vector>

/// How an amount is held against a limit.
enum class Grenzart {
    Hoechstens, ///< the limit itself is kept
    Unter,      ///< the limit itself is too much
    Mindestens, ///< the limit itself is enough
};

/// A published limit of a day, and for whom it is.
struct Grenzwert
{
    static constexpr int ohneEnde = 1000;

    Tagesgroesse groesse;
    Grenzart art;
    double wert;            ///< in the unit of the `Tagesgroesse`
    const char *schluessel; ///< of the publication, on docs/limits.md
    const char *worte;      ///< what it stands for, key into the string table: "purinarm"
    int von = 0;            ///< whole years
    int bis = ohneEnde;     ///< still included
    /// Absent: for both.
    std::optional<Referenzgeschlecht> geschlecht = {};
    /// Absent: whatever it is.
    std::optional<Referenzzustand> zustand = {};
};

/// Why somebody has no limit of something.
enum class Grenzmangel {
    Keiner,
    NichtVeroeffentlicht, ///< nobody has set one
    GeschlechtFehlt,
    AlterAusserhalb, ///< none for this age, or not for this age in pregnancy or lactation
};

/// All limits, those of one figure one after another.
const std::vector<Grenzwert> &alleGrenzwerte();

/// The limits of a person; an absent age counts as that of a grown-up.
struct Grenzen
{
    QList<const Grenzwert *> werte = {};
    Grenzmangel mangel = Grenzmangel::Keiner;
};
Grenzen grenzenFuer(Tagesgroesse groesse, const Referenzperson &person);

/// The publication of that key, or null when there is none.
const Quelle *grenzquelle(const char *schluessel);

/// All publications from which a limit was taken, each once, in the order of the limits.
std::vector<const Quelle *> grenzquellen();
