#pragma once

#include "platform/ports.h"

#include <map>
#include <vector>

/// Lists what was played.
class SoundRecorder : public Sound {
public:
    std::map<Cue, std::string> images;
    std::vector<Cue> played;
    int beeps = 0;

    void load(Cue cue, std::string_view wavImage) override { images[cue] = wavImage; }
    void play(Cue cue) override { played.push_back(cue); }
    void beep() override { ++beeps; }
    std::string device() const override { return "recorder"; }
};
