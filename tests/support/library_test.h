// The fixture of tests that call the library through the distrustful host.
#ifndef TARN_LIBRARY_TEST_H
#define TARN_LIBRARY_TEST_H

#include <gtest/gtest.h>

#include "support/test_host.h"

// Each test starts without reports and ends without live blocks. A test that provokes fatal errors
// says so by expect_fatals(); any other ends without one.
class LibraryTest : public testing::Test {
protected:
    void SetUp() override { test_host::reset(); }

    void TearDown() override {
        EXPECT_EQ(test_host::live_blocks(), 0U) << "blocks were left";
        EXPECT_EQ(test_host::fatal_reports().size(), expectedFatals_) << "fatal errors reported";
        test_host::reset();
    }

    // Checks that since the last such call `count` fatal errors were reported, all empty texts from
    // this module.
    void expect_fatals(std::size_t count, const char *module) {
        const auto &reports = test_host::fatal_reports();
        ASSERT_EQ(reports.size(), expectedFatals_ + count);
        for (; expectedFatals_ < reports.size(); ++expectedFatals_) {
            EXPECT_EQ(reports[expectedFatals_].module, module);
            EXPECT_EQ(reports[expectedFatals_].text, "");
            EXPECT_NE(reports[expectedFatals_].line, 0U);
        }
    }

private:
    std::size_t expectedFatals_ = 0;
};

#endif
