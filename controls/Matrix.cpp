#include "Matrix.h"

#include <QAbstractButton>

#include <algorithm>

namespace {

const char *const tagEigenschaft = "tag";

int tagVon(const QAbstractButton &zelle)
{
    return zelle.property(tagEigenschaft).toInt();
}

} // namespace

Matrix::Matrix(QWidget *parent) : QWidget(parent) {}

QList<QAbstractButton *> Matrix::zellen() const
{
    QList<QAbstractButton *> ergebnis;
    for (QAbstractButton *knopf : findChildren<QAbstractButton *>(Qt::FindDirectChildrenOnly)) {
        if (knopf->property(tagEigenschaft).isValid()) {
            ergebnis << knopf;
        }
    }
    std::sort(ergebnis.begin(), ergebnis.end(),
              [](const auto *a, const auto *b) { return tagVon(*a) < tagVon(*b); });
    return ergebnis;
}

QAbstractButton *Matrix::zelle(int tag) const
{
    for (QAbstractButton *knopf : zellen()) {
        if (tagVon(*knopf) == tag) {
            return knopf;
        }
    }
    return nullptr;
}

bool Matrix::istEin(int tag) const
{
    const QAbstractButton *knopf = zelle(tag);
    return knopf != nullptr && knopf->isChecked();
}

int Matrix::gewaehlterTag() const
{
    for (const QAbstractButton *knopf : zellen()) {
        if (knopf->isChecked()) {
            return tagVon(*knopf);
        }
    }
    return -1;
}

void Matrix::waehle(int tag)
{
    if (QAbstractButton *knopf = zelle(tag)) {
        knopf->setChecked(true);
    }
}
