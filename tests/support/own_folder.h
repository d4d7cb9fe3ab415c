#pragma once

#include <cstdlib>
#include <filesystem>

// An empty folder to stand in while it lives, for tests in which the program writes its files.
struct OwnFolder {
    OwnFolder()
    {
        char name[] = "/tmp/gravelonXXXXXX";
        folder = mkdtemp(name);
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
