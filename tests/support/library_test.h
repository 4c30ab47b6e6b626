// The fixture of tests that call the library through the distrustful host.
#ifndef TARN_LIBRARY_TEST_H
#define TARN_LIBRARY_TEST_H

#include <gtest/gtest.h>

#include "support/test_host.h"

// The modules that the library names to its host.
namespace modules {
constexpr char api[] = "tarn_if_api";
constexpr char internal[] = "tarn_if_internal_funcs";
constexpr char conditional[] = "tarn_if_conditional_funcs";
} // namespace modules

// Each test starts without reports and ends without live blocks. A test that provokes fatal errors
// says so by expect_fatals(); any other ends without one.
class LibraryTest : public testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // Checks that since the last such call `count` fatal errors were reported, all empty texts from
    // this module.
    void expect_fatals(std::size_t count, const char *module);

private:
    std::size_t expectedFatals_ = 0;
};

#endif
