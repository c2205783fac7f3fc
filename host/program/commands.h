// The commands of the program jxc: what each takes from the command line, and what it does.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>

#include "host/property_settings.h"

namespace jxc {

// What was asked for cannot be understood, which shows only behind the command line's grammar. what() is for people.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

class Commands {
  public:
    // Adds the commands to the command line. `app` is parsed afterwards and must outlive this.
    explicit Commands(CLI::App& app);
    Commands(const Commands&) = delete;
    Commands& operator=(const Commands&) = delete;

    // A CLI::ParseError when a command is needed and none was given: without windows nothing opens by itself.
    void RequireOne() const;
    // Runs the command that was given; without one, the main window. Returns the exit code, 1 for a check with
    // findings; a property or user that is none is a UsageError, what cannot be done another std::exception with a text
    // for people.
    int Run() const;

  private:
    CLI::App& Add(const char* name, const char* purpose, std::function<int()> run);
    CLI::Option* AddCompany(CLI::App& command, const char* purpose = "文件，或 postgresql://... 地址");
    void AddUserAndSettings(CLI::App& command);
    PropertySettings Settings() const;
    void AddCreate();
    void AddDrive();
    void AddTour();
    void AddOpen(); // in a program with windows
    void AddBackupAndRestore();
    void AddCheck();

    CLI::App& app_;
    std::vector<std::pair<CLI::App*, std::function<int()>>> commands_;
    // What the commands take.
    std::string company_;
    std::string user_;
    std::vector<std::string> settings_; // PROPERTY=VALUE
    std::string copy_;                  // the file of a backup
    std::string pictures_;              // the folder for them
    std::string firstPictures_;         // the same, of a new company
    bool sample_ = false;
    bool bare_ = false;
    bool createDatabase_ = false;
};

} // namespace jxc
