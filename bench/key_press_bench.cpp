// A key press through DispatchKey to the state, with 250 samples in the sheet. Limit: 10 microseconds (p99).

#include "app/wiring.h"
#include "bench/report.h"
#include "core/dispatch_key.h"
#include "core/main_keys.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "platform/ports.h"

#include <algorithm>
#include <chrono>

namespace {

class SilentSound : public Sound {
    void load(Cue, std::string_view) override {}
    void play(Cue) override {}
    void beep() override {}
    std::string device() const override { return {}; }
};
class FixedClock : public Clock {
    Moment now() override { return {"15/11/2026", 14, 5, 9, 270}; }
};
class NoTimer : public OneShotTimer {
    void start(int) override {}
    void stop() override {}
};

SilentSound sound;
FixedClock clockOfBench;
NoTimer timer;

void fillSheet(int samples)
{
    sheet = SheetState();
    frmMain = MainScreen();
    ports = {nullptr, nullptr, &sound, &clockOfBench, &timer, nullptr, nullptr, "", 0};
    sheet.SoundOn = true;
    for (int sample = 1; sample <= samples; ++sample) {
        sheet.SampleField(sample, 1) = decimalText(sample);
        sheet.SampleField(sample, 2) = decimalText(10 * sample);
        for (int slot = 1; slot <= taxonSlots; ++slot)
            sheet.Count(sample, slot) = sample + slot;
    }
    sheet.SampleCount = sheet.CurrentSample = sheet.LatestSerial = samples;
    for (int slot = 1; slot <= taxonSlots; ++slot) {
        frmMain.Text2[slot].text = decimalText(sheet.Count(samples, slot));
        frmMain.Text1[slot].text = sheet.TaxonRecord[slot].Name = "Taxon name " + decimalText(slot);
        sheet.TaxonRecord[slot].Subtotal1 = slot % 2 == 0 ? "1" : "0";
    }
}

/// Microseconds of 50000 key presses, sorted.
std::vector<double> keyPresses(int samples)
{
    fillSheet(samples);
    const char keys[] = "QWERASDF";
    std::vector<double> microseconds;
    for (std::size_t press = 0; press < 50000; ++press) {
        const auto before = std::chrono::steady_clock::now();
        Form_KeyDown(keys[press % 8], 0);
        const std::chrono::duration<double, std::micro> took = std::chrono::steady_clock::now() - before;
        Form_KeyUp('Q', 0);
        Timer1_Timer();
        microseconds.push_back(took.count());
    }
    std::sort(microseconds.begin(), microseconds.end());
    return microseconds;
}

} // namespace

int main()
{
    const std::vector<double> few = keyPresses(1);
    const std::vector<double> many = keyPresses(250);
    report("key press to state, 250 samples, p99", many[many.size() * 99 / 100], "us", 10);
    report("key press to state, 250 samples to 1, median", median(many) / median(few), "times", 1.5);
    return 0;
}
