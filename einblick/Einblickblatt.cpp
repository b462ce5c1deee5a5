#include "Einblickblatt.h"

Einblickblatt::Einblickblatt(QWidget *parent) : QWidget(parent) {}
