#pragma once

#include "platform/fakes/memory_files.h"
#include "trials/days/chance.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

/// A user who answers whatever is asked, by chance, on a disk that holds good files and broken ones.
class RandomDialogs : public Dialogs {
public:
    RandomDialogs(Chance& chance, MemoryFiles& files) : chance_(chance), files_(files) {}

    std::function<void()> whenOpened = [] {}; ///< what a box does to the windows below it
    /// Instead of chance: this path for every file, and a Yes to every question.
    std::optional<std::string> purpose;

    bool staleSampleKept = false; ///< the last event asked about an older sample, and the answer was No
    bool failureTold = false;     ///< the last event told that a file could not be written
    void forgetAnswers() { staleSampleKept = failureTold = false; }

    /// Path of a file to read: a good one, a broken one, one that is missing.
    std::string fileToOpen();

    Answer ask(std::string_view text, std::string_view title, Buttons buttons, Icon icon) override;
    std::optional<std::string> chooseFileToSave(std::string_view title, const std::string& proposed) override;
    std::optional<std::string> chooseFileToOpen() override;
    std::optional<std::string> chooseTableToOpen(std::string_view) override { return chooseFileToOpen(); }
    std::optional<std::string> chooseFolder(std::string_view title) override;
    std::optional<std::string> choosePictureToSave(const std::string& proposed) override;
    std::optional<std::string> chooseFigureToSave(const std::string& proposed) override;
    std::optional<std::string> choosePagesToSave(const std::string& proposed) override;
    std::optional<Colour> chooseColour(Colour current) override;

private:
    Chance& chance_;
    MemoryFiles& files_;
};
