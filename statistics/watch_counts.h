#pragma once

/// After an event of the user: what the main window says of the counts follows them. Costs nothing while
/// neither the line nor a target was asked for.
void watchCounts();
