#pragma once

class QWidget;

/// Opens the box that says what the program is, which version, and where its figures come from.
void zeigeUeber(QWidget *fenster);
