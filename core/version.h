#pragma once

constexpr char programVersion[] = "3.2.5";
