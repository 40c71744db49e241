#pragma once

/// After an event of the user: what the windows say of the counts follows them. Costs next to nothing while
/// neither the line, a target nor the window was asked for.
void watchCounts();
