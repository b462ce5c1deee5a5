#include "Dateituer.h"

#include <QFileDialog>
#include <QFileInfo>

void frageNachDatei(QWidget *fenster, const Dateifrage &frage,
                    const std::function<void(const QString &)> &antwort)
{
    auto *dialog = new QFileDialog(fenster, frage.titel, QFileInfo(frage.vorschlag).path());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setNameFilter(frage.arten);
    dialog->setDefaultSuffix(frage.endung);
    dialog->setFileMode(frage.zumSchreiben ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (frage.zumSchreiben) {
        dialog->setAcceptMode(QFileDialog::AcceptSave);
        dialog->selectFile(QFileInfo(frage.vorschlag).fileName());
    }
    QObject::connect(dialog, &QFileDialog::fileSelected, fenster, antwort);
    dialog->open();
}
