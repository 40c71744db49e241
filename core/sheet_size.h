#pragma once

constexpr int taxonSlots = 135;    ///< slots 1 to 135; slot 0 holds headers or totals, never a taxon
constexpr int keysPerLayer = 45;   ///< slot = key number + 45 x layer
constexpr int sampleLimit = 250;   ///< most samples in a sheet
constexpr int sampleColumns = 256; ///< columns that the tables have room for, 0 to 255
constexpr int infoItems = 6;       ///< additional info items of a sample, 1 to 6
