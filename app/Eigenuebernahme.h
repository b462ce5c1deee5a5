#pragma once

#include "Uebernahme.h"

class AppController;

/// Makes what came of taking foods over the own foods, in one step that can be taken back. An own
/// food on display that was replaced is shown with the values that it has now.
void uebernimmInEigene(AppController &controller, const Uebernahme &uebernahme);
