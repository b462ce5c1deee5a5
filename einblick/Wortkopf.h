#pragma once

#include <QHeaderView>

/// Headings that are broken into lines where their columns are narrow, so that long names of foods
/// are read whole.
class Wortkopf : public QHeaderView
{
    Q_OBJECT

public:
    explicit Wortkopf(QWidget *parent = nullptr);

    /// As high as the heading that needs most lines.
    QSize sizeHint() const override;
    /// What the longest word of all headings needs.
    int wortbreite() const;
};
