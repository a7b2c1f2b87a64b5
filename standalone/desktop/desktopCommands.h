// SPDX-License-Identifier: MIT
#pragma once

class CKvDesktop;

/// NEW, OPEN, CLOSE, QSAVE, SAVE, SAVEAS, LOADSCRIPT, QUIT.
void addFileCommands(CKvDesktop &desktop);
/// ZOOM, REGEN.
void addViewCommands(CKvDesktop &desktop);
/// SETVAR, DWGSTANDARDS.
void addSettingCommands(CKvDesktop &desktop);
/// LAYER.
void addLayerCommand(CKvDesktop &desktop);
/// LINETYPE.
void addLineStyleCommand(CKvDesktop &desktop);
/// STYLE.
void addTextStyleCommand(CKvDesktop &desktop);
/// DIMSTYLE.
void addDimStyleCommand(CKvDesktop &desktop);
/// ERASE.
void addEraseCommand(CKvDesktop &desktop);
/// UNDO, REDO, REDON, RENAME, PURGE.
void addEditCommands(CKvDesktop &desktop);
/// LINE, CIRCLE, TEXT, INSERTBLOCK.
void addDrawCommands(CKvDesktop &desktop);
