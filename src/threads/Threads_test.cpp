#include <gtest/gtest.h>
TEST(Threads, Placeholder) {}
