#pragma once

class AppController;

/// Builds the menu bar of the main window. Every entry does what a control or a toolbar item of
/// the window does too; the menus are where a user looks for its shortcut.
void baueMenueleiste(AppController &controller);
