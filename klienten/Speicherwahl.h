#pragma once

#include <QWidget>

#include <functional>
#include <optional>

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSettings;

/// The server of the practice as the settings name it; empty: the clients are in a file here.
QString klientenserver(const QSettings &einstellungen);

/// The part of the settings that says where the clients are kept: in a file of this desk, or on a
/// server that the desks of a practice share.
class Speicherwahl : public QWidget
{
    Q_OBJECT

public:
    /// Goes over to the store that the settings name. What stands in the way there, in words, or an
    /// empty text; absent where that can't be done now.
    using Wechsel = std::function<std::optional<QString>()>;

    /// The settings outlive this. They stay as they were where the change can't be made.
    Speicherwahl(QSettings &einstellungen, Wechsel wechsle);

private:
    void folge();
    void uebernimm();

    QSettings &m_einstellungen;
    Wechsel m_wechsle;
    QRadioButton *m_datei;
    QRadioButton *m_server;
    QLineEdit *m_angabe;
    QPushButton *m_uebernehmen;
    QLabel *m_worte;
};
