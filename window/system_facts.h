#pragma once

#include "extras/diagnose_report.h"

/// What the computer tells of itself now. Needs the ports and a QApplication.
SystemFacts systemFacts();
