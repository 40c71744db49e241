#pragma once

/// The one place of the version: CMakeLists.txt reads it here for the packages.
constexpr char programVersion[] = "3.2.5";
