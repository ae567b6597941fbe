#pragma once

#include "cli/Command.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tavrik {

/// The companion's sub-commands as the command line declares them.
class CommandLine {
public:
    CommandLine();

    CLI::App& parser() { return m_parser; }

    /// The command that the parsed line names.
    Command& chosen() const { return *m_chosen; }

    /// Whether standard output is for a program, so that log lines go elsewhere.
    bool answersPrograms() const { return m_answersPrograms; }

    /// Where the log lines are to be appended; empty when no file was named.
    const std::string& logFile() const { return m_logFile; }

    /// Declares a sub-command of `parent`, which `declared` is then, and makes it.
    template<typename T, typename... Arguments>
    T& add(CLI::App& parent, const char* name, const char* description, CLI::App*& declared,
           Arguments... arguments) {
        auto command = std::make_unique<T>(arguments...);
        T& added = *command;
        m_commands.push_back(std::move(command));
        declared = parent.add_subcommand(name, description);
        declared->callback([this, &added] { m_chosen = &added; });
        return added;
    }

    /// The line names a command whose standard output is for a program.
    void answerPrograms() { m_answersPrograms = true; }

private:
    void declareLists();
    void declareIcons();
    void declareFonts();
    void declareStaging();
    void declareApplying();
    void declareThemes();
    void declareThemeIcons(CLI::App& theme);
    void declareThemeFiles(CLI::App& theme);
    void declareWrappers();
    void declareBackups();
    void declareMaintenance();

    void addJson(CLI::App& command, bool& json);

    CLI::App m_parser;
    std::vector<std::unique_ptr<Command>> m_commands;
    Command* m_chosen = nullptr;
    bool m_answersPrograms = false;
    std::string m_logFile;
};

} // namespace tavrik
