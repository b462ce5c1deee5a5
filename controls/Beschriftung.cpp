#include "Beschriftung.h"

Beschriftung::Beschriftung(QWidget *parent) : QLabel(parent)
{
    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
}
