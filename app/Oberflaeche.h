#pragma once

#include "AnthroController.h"
#include "AppController.h"
#include "Dateiansage.h"
#include "Fenstergedaechtnis.h"

#include <memory>

class Dateihueter;

/// All that is there once the program has started: the main window with its controller, and the
/// calculator, whose two pages lie in the last two tabs of that window.
class Oberflaeche
{
public:
    explicit Oberflaeche(const Tueren &tueren);

    /// Start-up of the main window, then of the calculator. Called once, after construction.
    void awakeFromNib();

    /// The keeper of the user's files, which all windows share.
    std::shared_ptr<Dateihueter> dateien;
    AppController hauptfenster;
    AnthroController rechner;
    Dateiansage ansage;
    Fenstergedaechtnis gedaechtnis;
};
