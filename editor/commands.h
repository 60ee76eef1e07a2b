// Every command, named after the key that calls it: tarndoc and a letter for a control key, tarndom
// and a letter for a meta key. dispatch.h says what happens before and after a command. One that
// cannot do what it is asked rings the bell, and no text changes.
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
void tarndelete();     // C-\: deletes the byte at the point
void tarnundo();       // C-_: undoes one oper more
void tarnpaste();      // C-space: puts `clip` in at the point
void tarnbackspace();  // Backspace: deletes the byte before the point
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
void tarndomk();  // the palette that the text at the point tells
void tarndoml();  // prompt: go to a line
void tarndomm();  // prompt: where the point is; types control keys
void tarndomn();  // a new buffer
void tarndomo();  // prompt: open a file
void tarndomp();  // prompt: show the palette
void tarndomq();  // prompt: a quip
void tarndomr();  // red ink
void tarndoms();  // prompt: find
void tarndomt();  // prompt: a byte many times
void tarndomu();  // the default palette
void tarndomv();  // put the definitions in order
void tarndomw();  // prompt: save under a name
void tarndomx();  // prompt: replace
void tarndomy();  // yellow ink
void tarndomz();  // clip := the whole text

}  // namespace tarn
