#pragma once

#include <QLabel>

/// The caption of a field that is hidden together with it; its place stays free, so that nothing
/// jumps while one food after the other is shown.
class Beschriftung : public QLabel
{
    Q_OBJECT

public:
    explicit Beschriftung(QWidget *parent = nullptr);
};
