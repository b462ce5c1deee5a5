#pragma once

#include <QLayout>
#include <QWidget>

/// A page for a Rollbereich whose tables and drawings give way. A plain page grows to the height
/// that all its parts would like to have as soon as one of its sentences is broken into lines; this
/// one stays as high as the window, and rolls only where its parts can't do with less.
class Rollseite : public QWidget
{
public:
    using QWidget::QWidget;

    int heightForWidth(int breite) const override
    {
        return layout() != nullptr && layout()->hasHeightForWidth()
                   ? layout()->totalMinimumHeightForWidth(breite)
                   : -1;
    }
};
