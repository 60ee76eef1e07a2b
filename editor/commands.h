// Every command, by the key that calls it: tarndoc and a letter for a control key, tarndom and a letter
// for a meta key. Only dispatch calls them; dispatch.h says what it does before and behind.
#pragma once

#include <cstdint>

namespace tarn {

// Control keys.
void tarndoca();  // point to the start of its line
void tarndocb();  // point back
void tarndocd();  // a screen down
void tarndoce();  // point to the end of its line
void tarndocf();  // point forward
void tarndocg();  // back to the plain state, with the bell
void tarndoch();  // the status text from its start
void tarndoci();  // prompt: the buffer list
void tarndock();  // kill to the end of the line, or the selection
void tarndocl();  // recentre
void tarndocn();  // a row down
void tarndocp();  // a row up
void tarndocr();  // redo
void tarndoct();  // the status text one step right
void tarndocu();  // a screen up
void tarndocw();  // save
void tarndocx();  // insert or overwrite mode
void tarndelete();     // C-\: delete the byte at the point
void tarnundo();       // C-_
void tarnpaste();      // NUL, C-space
void tarnbackspace();  // 0x7F
void tarntype(uint8_t key);  // a printable key or newline

// Meta keys.
void tarndoma();  // clip := stat
void tarndomb();  // prompt: go to a byte
void tarndomc();  // close the buffer
void tarndomd();  // forget the history
void tarndome();  // prompt: evaluate
void tarndomf();  // the window to the end of the text
void tarndomg();  // green ink
void tarndomh();  // the window to the start of the text
void tarndomi();  // prompt: indent
void tarndomj();  // prompt: select
void tarndomk();  // prompt: palette from the text
void tarndoml();  // prompt: go to a line
void tarndomm();  // prompt: meta, where the point is
void tarndomn();  // a new buffer
void tarndomo();  // prompt: open a file
void tarndomp();  // prompt: show the palette
void tarndomq();  // prompt: a quip
void tarndomr();  // red ink
void tarndoms();  // prompt: find
void tarndomt();  // prompt: a byte many times
void tarndomu();  // the default palette
void tarndomv();  // sort the definitions
void tarndomw();  // prompt: save under a name
void tarndomx();  // prompt: replace
void tarndomy();  // yellow ink
void tarndomz();  // clip := the whole text

}  // namespace tarn
