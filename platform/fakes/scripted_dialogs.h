#pragma once

#include "platform/ports.h"

#include <deque>
#include <functional>
#include <gtest/gtest.h>

/// Answers message boxes by a script. A message that was not announced fails the test, and so does one that
/// was announced and never came.
class ScriptedDialogs : public Dialogs {
public:
    std::function<void()> whenOpened = [] {}; ///< what happens to the window below a box

    ~ScriptedDialogs() override
    {
        for (const Expected& message : script_)
            ADD_FAILURE() << "Message that never came: " << message.text;
        EXPECT_TRUE(paths.empty()) << "file dialogs that never came";
    }

    /// Paths that the file dialogs answer, in order; nothing is a cancel.
    std::deque<std::optional<std::string>> paths;
    std::string proposed;  ///< name that the last save dialog proposed
    std::string saveTitle; ///< of that dialog

    std::optional<std::string> chooseFileToSave(std::string_view title, const std::string& name) override
    {
        saveTitle = title;
        proposed = name;
        return chooseFileToOpen();
    }
    std::optional<std::string> chooseFileToOpen() override
    {
        whenOpened();
        if (paths.empty()) {
            ADD_FAILURE() << "Unannounced file dialog";
            return std::nullopt;
        }
        auto path = paths.front();
        paths.pop_front();
        return path;
    }

    std::optional<std::string> chooseTableToOpen(std::string_view) override { return chooseFileToOpen(); }
    std::optional<std::string> chooseFolder(std::string_view) override { return chooseFileToOpen(); }
    std::optional<std::string> choosePictureToSave(const std::string& name) override
    {
        return chooseFileToSave("Save picture", name);
    }
    std::optional<std::string> chooseFigureToSave(const std::string& name) override
    {
        return chooseFileToSave("Save picture", name);
    }
    std::optional<std::string> choosePagesToSave(const std::string& name) override
    {
        return chooseFileToSave("Save pages", name);
    }
    std::optional<Colour> colour; ///< what the colour dialog answers
    std::optional<Colour> chooseColour(Colour) override { return colour; }

    void expect(std::string text, std::string title, Answer answer = Answer::ok)
    {
        script_.push_back({std::move(text), std::move(title), answer});
    }

    Answer ask(std::string_view text, std::string_view title, Buttons buttons, Icon) override
    {
        whenOpened();
        if (script_.empty()) {
            ADD_FAILURE() << "Unannounced message: " << text;
            return Answer::no;
        }
        const Expected message = script_.front();
        script_.pop_front();
        EXPECT_EQ(message.text, text);
        EXPECT_EQ(message.title, title);
        EXPECT_EQ(message.answer == Answer::ok, buttons == Buttons::ok) << "an answer that has no button";
        EXPECT_TRUE(message.answer != Answer::cancel || buttons == Buttons::yesNoCancel);
        return message.answer;
    }

private:
    struct Expected {
        std::string text;
        std::string title;
        Answer answer;
    };
    std::deque<Expected> script_;
};
