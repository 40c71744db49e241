// A key press through DispatchKey to the state, with 250 samples in the sheet, beside 135 plain parses and
// sums done twice, which is what the totals of a key press are made of.

#include "app/wiring.h"
#include "bench/yardsticks.h"
#include "core/dispatch_key.h"
#include "core/main_keys.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "platform/ports.h"

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

/// Of 50000 key presses.
struct Times {
    std::vector<double> presses;
    std::vector<double> sums;
};

Times keyPresses(int samples)
{
    fillSheet(samples);
    const char keys[] = "QWERASDF";
    const SampleSum sum;
    volatile std::int64_t kept = 0;
    Times times;
    for (std::size_t press = 0; press < 50000; ++press) {
        times.presses.push_back(milliseconds([&] { Form_KeyDown(keys[press % 8], 0); }));
        Form_KeyUp('Q', 0);
        Timer1_Timer();
        times.sums.push_back(milliseconds([&] { kept = sum() + sum(); }));
    }
    return times;
}

} // namespace

int main()
{
    const Times few = keyPresses(1);
    const Times many = keyPresses(250);
    report("key press to state, 250 samples, p99", p99(many.presses), p99(many.sums), 6);
    report("key press to state, 250 samples, to 1 sample", median(many.presses), median(few.presses), 1.5);
    return 0;
}
