// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Plays the archiver, called as it is: e PACKAGE -aoa -oFOLDER. What it does is in the variable
// WAVORIN_PLAY, line by line: a verb, then what it is done to, or with which text, after a bar.
// %p is the package, %o the folder, %i the number of this process, %a all arguments with their
// count, a line each.

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <thread>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <process.h>
#else
#include <unistd.h>
#endif

namespace {

namespace files = std::filesystem;

struct Line {
    std::string what;
    std::string text;
};

std::string with(std::string line, const std::map<std::string, std::string> &values)
{
    for (const auto &[name, value] : values) {
        for (std::size_t at = 0; (at = line.find(name, at)) != std::string::npos;
             at += value.size())
            line.replace(at, name.size(), value);
    }
    return line;
}

void write(const std::string &file, const std::string &text = {})
{
    std::ofstream(file, std::ios::binary) << text;
}

void sleep(int milliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

void copy(const std::string &stem, const std::string &folder)
{
    const std::string name = files::path(stem).filename().string();
    for (const auto &entry : files::directory_iterator(files::path(stem).parent_path())) {
        const std::string found = entry.path().filename().string();
        if (found.compare(0, name.size(), name) == 0)
            files::copy_file(entry.path(), folder + '/' + found);
    }
}

[[noreturn]] void crash()
{
#ifdef _WIN32
    std::_Exit(static_cast<int>(0xC0000005)); // without the system's debugger
#else
    std::signal(SIGSEGV, SIG_DFL);
    std::raise(SIGSEGV);
    std::abort();
#endif
}

void play(const std::string &package, const std::string &folder, const std::string &lines,
    const std::map<std::string, std::string> &values)
{
    const std::map<std::string, std::function<void(const Line &)>> verbs{
        {"only", // what follows is for packages whose path contains this
            [&](const Line &line) {
                if (package.find(line.what) == std::string::npos)
                    std::exit(0);
            }},
        {"refuse", // those
            [&](const Line &line) {
                if (package.find(line.what) == std::string::npos)
                    return;
                std::cout << "Error" << std::endl;
                std::exit(2);
            }},
        {"print", [](const Line &line) { std::cout << line.what << std::endl; }},
        {"complain", [](const Line &line) { std::cerr << line.what << std::endl; }},
        {"file", [](const Line &line) { write(line.what, line.text); }},
        {"folder", [](const Line &line) { files::create_directory(line.what); }},
        {"copy", [&](const Line &line) { copy(line.what, folder); }},
        {"remove", [](const Line &line) { files::remove_all(files::canonical(line.what)); }},
        {"ask", // a line of the answer into a file
            [](const Line &line) {
                std::string answer;
                std::getline(std::cin, answer);
                write(line.what, answer);
            }},
        {"await", // until there is such a file
            [](const Line &line) {
                while (!files::exists(line.what))
                    sleep(20);
            }},
        {"sleep", [](const Line &line) { sleep(std::stoi(line.what)); }},
        {"run", [](const Line &line) { std::exit(std::system(line.what.c_str()) == 0 ? 0 : 1); }},
        {"printForEver",
            [](const Line &line) {
                for (;;)
                    std::cout << line.what << std::endl;
            }},
        {"fillForEver",
            [&](const Line &) {
                for (int number = 0;; ++number)
                    write(folder + '/' + std::to_string(number) + ".cfg");
            }},
        {"crash", [](const Line &) { crash(); }},
        {"exit", [](const Line &line) { std::exit(std::stoi(line.what)); }},
    };
    std::istringstream input(lines);
    for (std::string line; std::getline(input, line);) {
        const std::string verb = line.substr(0, line.find(' '));
        const std::string rest = line.size() > verb.size() ? line.substr(verb.size() + 1) : "";
        const std::size_t bar = rest.find('|');
        verbs.at(verb)({with(rest.substr(0, bar), values),
            bar == std::string::npos ? std::string() : with(rest.substr(bar + 1), values)});
    }
}

} // namespace

int main(int argc, char *argv[])
{
#ifdef _WIN32
    _setmode(_fileno(stdin), _O_BINARY);
    const int process = _getpid();
#else
    const int process = getpid();
#endif
    const char *lines = std::getenv("WAVORIN_PLAY");
    if (argc < 5 || !lines)
        return 1;
    std::string arguments = std::to_string(argc - 1) + '\n';
    for (int i = 1; i < argc; ++i)
        arguments += std::string(argv[i]) + '\n';
    const std::string folder = std::string(argv[4]).substr(2);
    play(argv[2], folder, lines,
        {{"%a", arguments}, {"%i", std::to_string(process)}, {"%o", folder}, {"%p", argv[2]}});
}
