#pragma once

#include "AnthroController.h"
#include "AppController.h"
#include "Dateiabwurf.h"
#include "Dateiansage.h"
#include "Dateiempfang.h"
#include "Einblickanschluss.h"
#include "Fenstergedaechtnis.h"
#include "Hilfe.h"
#include "Klientenanschluss.h"
#include "Tabellenaustausch.h"
#include "Tageanschluss.h"
#include "Verlauf.h"

#include <functional>
#include <memory>

class Dateihueter;

/// All that is there once the program has started: the main window with its controller, the
/// calculator, whose two pages lie in the last two tabs of that window, and the way into the
/// handbook.
class Oberflaeche
{
public:
    explicit Oberflaeche(const Tueren &tueren) : Oberflaeche(tueren, std::make_shared<QString>()) {}

    /// Start-up of the main window, then of the calculator. Called once, after construction.
    void awakeFromNib();

    /// Speaks another language, "de" or "en", in all windows that are open.
    void sprich(const QString &kuerzel);

    /// Opens the window of the settings, over the main window.
    void zeigeEinstellungen();

    /// The keeper of the user's files, which all windows share.
    std::shared_ptr<Dateihueter> dateien;
    AppController hauptfenster;
    AnthroController rechner;
    Dateiansage ansage;
    Dateiempfang empfang;
    Dateiabwurf abwurf;
    Fenstergedaechtnis gedaechtnis;
    Hilfe hilfe;
    Verlauf verlauf;
    Tabellenaustausch austausch;
    Klientenanschluss klienten;
    Tageanschluss tage;
    Einblickanschluss einblick;

private:
    Oberflaeche(const Tueren &tueren, const Klientenanschluss::Kopfzeile &kopfzeile);

    static void folgeSprache(Planmodul *plan);

    std::function<void(const QString &)> m_sprich;
    Einstellungen &m_einstellungen;
    Datenordner m_datenordner;
    Dateituer m_waehleDatei;
};
