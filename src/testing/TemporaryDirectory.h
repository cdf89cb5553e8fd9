#pragma once
// A test fixture that gives each test a fresh directory under a given root, removed with
// everything in it by TearDown, so a failing test leaves nothing behind.

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "files/FileLocation.h"
#include "files/FileLocationFunctions.h"

class TemporaryDirectory : public ::testing::Test {
  protected:
    void SetUp() override { m_root = MakeTree(RootParent()); }
    void TearDown() override {
        for (std::string const& tree : m_trees) {
            RemoveTree(tree);
        }
    }

    // The directory under which the test's tree is made; the build tree lives on disk.
    virtual std::string RootParent() const { return "/tmp"; }

    // Returns a new empty directory under parent that TearDown removes.
    std::string MakeTree(std::string const& parent) {
        std::string pattern = parent + "/zolfiles.XXXXXX";
        char const* made = ::mkdtemp(&pattern[0]);
        if (!made) {
            ADD_FAILURE() << "mkdtemp under " << parent;
            return parent;
        }
        m_trees.push_back(made);
        return made;
    }

    std::string Path(std::string const& relative) const { return m_root + "/" + relative; }
    FileLocation Location(std::string const& relative) const {
        return MakeFileLocation(Path(relative).c_str());
    }
    FileLocation Root() const { return MakeFileLocation(m_root.c_str()); }

    static void WriteText(std::string const& path, std::string const& text) {
        std::ofstream(path, std::ios::binary) << text;
    }
    static std::string ReadText(std::string const& path) {
        std::ifstream in(path, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }
    static bool Exists(std::string const& path) {
        struct stat record;
        return ::lstat(path.c_str(), &record) == 0;
    }
    static void MakeDirectory(std::string const& path) {
        ASSERT_EQ(0, ::mkdir(path.c_str(), 0700));
    }

    std::string m_root;

  private:
    // Removes the tree without following links, with the C library only, so that the clean-up
    // does not depend on the code under test.
    static void RemoveTree(std::string const& path) {
        std::string command = "rm -rf '" + path + "'";
        if (std::system(command.c_str()) != 0) {
            ADD_FAILURE() << "could not remove " << path;
        }
    }

    std::vector<std::string> m_trees;
};
