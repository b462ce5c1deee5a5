#include "Dateifrage.h"

#include <QFileDialog>
#include <QFileInfo>

namespace {

void stelleArt(QFileDialog &fenster, Dateifrage::Art art)
{
    switch (art) {
    case Dateifrage::Art::Oeffnen:
        fenster.setFileMode(QFileDialog::ExistingFiles);
        break;
    case Dateifrage::Art::Sichern:
        fenster.setAcceptMode(QFileDialog::AcceptSave);
        fenster.setFileMode(QFileDialog::AnyFile);
        break;
    case Dateifrage::Art::Ordner:
        fenster.setFileMode(QFileDialog::Directory);
        fenster.setOption(QFileDialog::ShowDirsOnly);
        break;
    }
}

} // namespace

QStringList frageNachDateien(QWidget *fenster, const Dateifrage &frage)
{
    QFileDialog dialog(fenster, frage.titel);
    stelleArt(dialog, frage.art);
    if (!frage.filter.isEmpty()) {
        dialog.setNameFilter(frage.filter);
    }
    dialog.setDefaultSuffix(frage.endung);
    const QFileInfo vorschlag(frage.vorschlag);
    if (frage.art == Dateifrage::Art::Sichern) {
        dialog.setDirectory(vorschlag.path());
        dialog.selectFile(vorschlag.fileName());
    } else {
        dialog.setDirectory(vorschlag.filePath());
    }
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles() : QStringList();
}
