// The system's dialogs, answered by a test.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

#include "platform/dialogs.h"

namespace tessarine::fakes {

/// A question or a chooser that no test has answered beforehand fails the test; a message that can
/// only be read does not.
class ScriptedDialogs final : public Dialogs {
  public:
    struct Message {
        std::string text;
        MessageStyle style;
        std::string title = {};
        friend bool operator==(const Message&, const Message&) = default;
    };
    struct FileChoice {
        FilePurpose purpose;
        std::string start_folder;
        std::string filters;  ///< "caption=pattern;" for each
        std::string title;
        friend bool operator==(const FileChoice&, const FileChoice&) = default;
    };

    void answer_next(MessageAnswer answer) { answers_.push_back(answer); }
    void choose_file_next(const std::string& path) { files_.push_back(path); }

    MessageAnswer message_box(const std::string& text, MessageStyle style,
                              const std::string& title = {}) override {
        messages.push_back({text, style, title});
        if (style != MessageStyle::YesNoQuestion) return MessageAnswer::Ok;
        return taken(answers_, MessageAnswer::No, text);
    }

    void beep() override { ++beeps; }

    std::string choose_file(FilePurpose purpose, const std::string& start_folder,
                            const std::vector<FileFilter>& filters,
                            const std::string& title) override {
        std::string shown;
        for (const FileFilter& filter : filters)
            shown += filter.caption + "=" + filter.pattern + ";";
        choices.push_back({purpose, start_folder, shown, title});
        return taken(files_, std::string(), "choice of a file");
    }

    std::string choose_folder(const std::string& title) override {
        return choose_file(FilePurpose::Open, "", {}, "folder: " + title);
    }

    std::string ask_save_name(const std::string& proposed_name) override {
        return choose_file(FilePurpose::Save, "", {}, "save " + proposed_name);
    }

    std::vector<Message> messages;
    std::vector<FileChoice> choices;
    int beeps = 0;

  private:
    template <class Answer>
    static Answer taken(std::deque<Answer>& answers, const Answer& otherwise,
                        const std::string& question) {
        if (answers.empty()) {
            ADD_FAILURE() << "no answer is prepared for: " << question;
            return otherwise;
        }
        const Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }

    std::deque<MessageAnswer> answers_;
    std::deque<std::string> files_;
};

}  // namespace tessarine::fakes
