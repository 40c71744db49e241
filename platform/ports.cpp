#include "platform/ports.h"

Ports ports;
