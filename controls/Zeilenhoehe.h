#pragma once

class QWidget;

/// How high a row of this table is that has `hoehe` points with letters of the usual size: as high,
/// or as much higher as larger letters need.
int zeilenhoeheFuer(const QWidget &tabelle, int hoehe);
