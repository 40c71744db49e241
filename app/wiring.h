#pragma once

/// Connects what lower rooms set off in higher ones. Used by the program and by whole-session tests alike;
/// called once, before Form_Load().
void connectRooms();
