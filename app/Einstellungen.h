#pragma once

#include <QBasicTimer>
#include <QSettings>

/// The user defaults in the platform's store. A value that was set can be read at once, and is
/// written to the disk a little later, with all that were set in the meantime: a slider sets its
/// value a hundred times on its way, and each write would stop it for several milliseconds. What
/// is not written yet is written by `sync()` and at the end of the program.
class Einstellungen : public QSettings
{
    Q_OBJECT

public:
    using QSettings::QSettings;

protected:
    bool event(QEvent *event) override;

private:
    QBasicTimer m_ruhe;
};
