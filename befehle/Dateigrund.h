#pragma once

#include "Archivdatei.h"

/// Why a file of foods or of a plan tells nothing, in one sentence in the language of the windows;
/// null when it was read.
QString dateigrund(const QString &path, const Archivdatei::Inhalt &inhalt);
