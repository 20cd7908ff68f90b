#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>

/// A database file of the test's own, gone with it.
class DatabaseFile : public testing::Test {
 protected:
  DatabaseFile() : path_(std::filesystem::temp_directory_path() / ("shop_engine_" + std::to_string(::getpid()) + ".db")) {
    Remove();
  }
  ~DatabaseFile() override { Remove(); }
  void Remove() {
    for (const char* tail : {"", "-wal", "-shm", "-journal"}) std::filesystem::remove(path_.string() + tail);
  }
  std::filesystem::path path_;
};
