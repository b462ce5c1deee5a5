#pragma once

#include <QList>
#include <QWidget>

/// A line of groups that stand beside one another while there is room, and below one another where
/// there is not. The groups are its children, and it has no layout. It knows its height even while
/// it is hidden, so that nothing moves when it appears, where its place is kept.
class Umbruchzeile : public QWidget
{
    Q_OBJECT

public:
    explicit Umbruchzeile(QWidget *parent = nullptr);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int breite) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QList<QWidget *> gruppen() const;
    QSize nebeneinander() const;
    QSize untereinander() const;
    void ordne();
};
