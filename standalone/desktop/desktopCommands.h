// SPDX-License-Identifier: MIT
#pragma once

class CKvDesktop;

/// NEW, OPEN, CLOSE, QSAVE, SAVE, SAVEAS, LOADSCRIPT, QUIT.
void addFileCommands(CKvDesktop &desktop);
/// ZOOM, REGEN.
void addViewCommands(CKvDesktop &desktop);
/// SETVAR, DWGSTANDARDS.
void addSettingCommands(CKvDesktop &desktop);
/// LAYER, LINETYPE, STYLE, DIMSTYLE.
void addRecordCommands(CKvDesktop &desktop);
/// UNDO, REDO, REDON, ERASE, RENAME, PURGE.
void addEditCommands(CKvDesktop &desktop);
/// LINE, CIRCLE, TEXT, INSERTBLOCK.
void addDrawCommands(CKvDesktop &desktop);
