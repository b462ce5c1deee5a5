#pragma once

#include <QScrollArea>

/// Holds a page that may be taller than its window, which can be small or on a small screen: the
/// page rolls up and down. It is never narrower than the page, and where there is room it looks as
/// if it were not there.
///
/// The wheel rolls the page. A slider, number or chooser follows it only while it has the focus, so
/// that no value changes under the mouse on the way down.
class Rollbereich : public QScrollArea
{
    Q_OBJECT

public:
    /// Takes the page and owns it.
    explicit Rollbereich(QWidget *seite, QWidget *parent = nullptr);

    /// Fills an empty widget with a page that rolls.
    static void fuelle(QWidget &rahmen, QWidget *seite);
    /// Makes roll what a widget holds now. The Tab key goes through it as before.
    static void fasse(QWidget &rahmen);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
