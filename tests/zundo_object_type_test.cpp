// The hooks shared by every object type refuse objects of another type.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "zundo_object.h"

namespace {

std::vector<std::string> traced;
void collect(const char *message) { traced.push_back(message); }

class WrongObjectTest : public ::testing::Test {
protected:
    void SetUp() override {
        setenv("DEBUG_ZUNDO", "", 1);
        enableTraceCallback(1, collect);
        traced.clear();
    }
    void TearDown() override {
        disableTraceCallback();
        unsetenv("DEBUG_ZUNDO");
    }
};

TEST_F(WrongObjectTest, DestroyHookOfAnotherTypeLeavesTheObjectAlone) {
    zundo_int_object_s *document = nullptr, *job = nullptr, *ticket = nullptr, *stitching = nullptr;
    ASSERT_EQ(ZUNDO_OK, newDocument(&document, "a.pdf"));
    ASSERT_EQ(ZUNDO_OK, newJob(&job, document));
    ASSERT_EQ(ZUNDO_OK, newJobTicketInfoFromJob(&ticket, job));
    ASSERT_EQ(ZUNDO_OK, newStitching(&stitching, -1, 0, 1));

    traced.clear();
    ticket->destroyHook(stitching);
    stitching->destroyHook(job);
    job->destroyHook(ticket);
    EXPECT_EQ((std::vector<std::string>{"invalid object passed to destroyJobTicketInfo\n",
                                        "passed invalid object to destroyStitching\n",
                                        "passed invalid object to destroyJob\n"}),
              traced);
    // Nothing was freed: every object still answers and is destroyed once.
    EXPECT_EQ(ZUNDO_OK, setIntegerAttribute(stitching, "stitching-count", 2));
    EXPECT_EQ(job, getJob(ticket));
    EXPECT_NE(nullptr, getDocuments(job));
    destroy(stitching);
    destroy(ticket);
}

TEST_F(WrongObjectTest, CloneAndCompareOfAnotherTypeAreRefused) {
    zundo_int_object_s *stitching = nullptr, *binding = nullptr, *copy = nullptr;
    ASSERT_EQ(ZUNDO_OK, newStitching(&stitching, -1, 0, 1));
    ASSERT_EQ(ZUNDO_OK, newBinding(&binding, 1, 0));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, cloneStitching(&copy, binding));
    EXPECT_EQ(nullptr, copy);
    EXPECT_EQ(1, compareStitching(stitching, binding));
    EXPECT_EQ(1, compareObjects(binding, stitching));
    destroy(stitching);
    destroy(binding);
}

}  // namespace
