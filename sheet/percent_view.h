#pragma once

/// "%" held down: the counts on show give way to their percentages, and nothing is stored until it is let go.

void Command6_MouseDown();
/// Puts the numbers back. Also when the button was not let go but the mouse or the keyboard went elsewhere;
/// without a view it does nothing.
void Command6_MouseUp();
