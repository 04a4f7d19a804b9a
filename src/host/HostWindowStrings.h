#pragma once
// The window side of the string tables: the "STID_..." names that dialog and menu templates
// hold in place of words are replaced by the words of the table, as replaceHostString turns
// one text ("@STID_..." reads the host's table 1). Texts that are no names, and names the
// table lacks, stay as they are.
#include "platform/WinTypes.h"

// Every child window of a window (a dialog's controls, and theirs), not the window's own
// caption. Returns how many texts were replaced.
int replaceHostChildWindowStrings(short table, HWND window);
// Every item of a menu and of its popups. Returns how many texts were replaced.
int replaceHostMenuStrings(short table, HMENU menu);
