#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

// An empty folder to stand in while it lives, for tests in which the program writes its files.
struct OwnFolder {
    explicit OwnFolder(const std::string& parent = "/tmp")
    {
        std::string name = parent + "/gravelonXXXXXX";
        folder = mkdtemp(name.data());
        std::filesystem::current_path(folder);
    }
    ~OwnFolder()
    {
        std::filesystem::current_path(before);
        std::filesystem::remove_all(folder);
    }
    OwnFolder(const OwnFolder&) = delete;
    OwnFolder& operator=(const OwnFolder&) = delete;

    std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::path folder;
};
