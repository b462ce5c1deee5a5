#pragma once

#include <QList>
#include <QObject>
#include <QUrl>

/// Takes the files that the user drops onto main window, plan or handbook, wherever in them. A drag
/// within the program, which carries a food's name, is none of its business.
class Dateiabwurf : public QObject
{
    Q_OBJECT

public:
    Dateiabwurf();

Q_SIGNALS:
    /// These were dropped. The drag is over by then.
    void abgeworfen(const QList<QUrl> &adressen);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
