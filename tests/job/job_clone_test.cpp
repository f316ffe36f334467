// Cloning and comparing jobs, documents and tickets, and the media list the
// writer collects from a ticket.
#include <gtest/gtest.h>

#include "zundo.h"

namespace {

zundo_int_object_s *mediaNamed(const char *name) {
    zundo_int_object_s *media = nullptr;
    EXPECT_EQ(newMedia(&media, name), ZUNDO_OK);
    return media;
}

zundo_int_object_s *newRichJob() {
    zundo_int_object_s *job = nullptr;
    EXPECT_EQ(newJobNoDocument(&job), ZUNDO_OK);
    for (const char *fileName : {"one.pdf", "two.pdf"}) {
        zundo_int_object_s *document = nullptr;
        EXPECT_EQ(newDocument(&document, fileName), ZUNDO_OK);
        EXPECT_EQ(setStringAttribute(document, "document-format", "application/pdf"), ZUNDO_OK);
        EXPECT_EQ(setObjectAttribute(document, "document-media", mediaNamed(fileName)), ZUNDO_OK);
        EXPECT_EQ(addDocument(job, document), ZUNDO_OK);
    }
    zundo_int_object_s *binding = nullptr;
    zundo_int_object_s *stitching = nullptr;
    EXPECT_EQ(newBinding(&binding, 2, 1), ZUNDO_OK);
    EXPECT_EQ(newStitching(&stitching, 2, 1, 1), ZUNDO_OK);
    EXPECT_EQ(setIntegerAttribute(job, "job-copies", 3), ZUNDO_OK);
    EXPECT_EQ(setStringAttribute(job, "job-process-color-model", "CMYK"), ZUNDO_OK);
    EXPECT_EQ(setObjectAttribute(job, "job-media", mediaNamed("Plain")), ZUNDO_OK);
    EXPECT_EQ(setObjectAttribute(job, "job-binding", binding), ZUNDO_OK);
    EXPECT_EQ(setObjectAttribute(job, "job-stitching", stitching), ZUNDO_OK);
    return job;
}

}  // namespace

TEST(JobClone, CloneOfARichJobComparesEqualUntilChanged) {
    zundo_int_object_s *job = newRichJob();
    zundo_int_object_s *copy = cloneObj(job);
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(compareObjects(job, copy), 0);
    EXPECT_EQ(compareJobs(copy, job), 0);

    zundo_int_object_s **documents = getDocuments(copy);
    ASSERT_NE(documents[0], nullptr);
    ASSERT_NE(documents[1], nullptr);
    EXPECT_EQ(documents[2], nullptr);
    for (int i = 0; i < 2; i++) {
        EXPECT_NE(documents[i], getDocuments(job)[i]);
        EXPECT_EQ(compareObjects(documents[i], getDocuments(job)[i]), 0);
    }
    EXPECT_NE(compareObjects(documents[0], documents[1]), 0);  // file names differ

    zundo_int_object_s *other = cloneObj(job);
    ASSERT_EQ(setIntegerAttribute(copy, "job-copies", 4), ZUNDO_OK);
    EXPECT_NE(compareJobs(job, copy), 0);
    ASSERT_EQ(setIntegerAttribute(other, "job-sides", 2), ZUNDO_OK);  // the block differs
    EXPECT_NE(compareJobs(job, other), 0);
    destroy(other);

    destroy(copy);
    destroy(job);
}

TEST(JobClone, JobsCompareWithoutTheirDocuments) {
    zundo_int_object_s *a = nullptr;
    zundo_int_object_s *b = nullptr;
    zundo_int_object_s *document = nullptr;
    ASSERT_EQ(newJobNoDocument(&a), ZUNDO_OK);
    ASSERT_EQ(newDocument(&document, "x.pdf"), ZUNDO_OK);
    ASSERT_EQ(newJob(&b, document), ZUNDO_OK);
    EXPECT_EQ(compareJobs(a, b), 0);
    EXPECT_EQ(compareJobs(nullptr, nullptr), 0);
    EXPECT_EQ(compareJobs(a, nullptr), 1);
    EXPECT_EQ(compareJobs(a, document), 1);
    destroy(a);
    destroy(b);
}

TEST(JobClone, TicketCloneOwnsItsOwnJob) {
    zundo_int_object_s *ticket = nullptr;
    ASSERT_EQ(newJobTicketInfoFromJob(&ticket, newRichJob()), ZUNDO_OK);
    ASSERT_EQ(setStringAttribute(ticket, "jt-jdf-node-id", "n1"), ZUNDO_OK);
    zundo_int_object_s *copy = cloneObj(ticket);
    ASSERT_NE(copy, nullptr);
    EXPECT_NE(getJob(copy), getJob(ticket));
    EXPECT_EQ(compareJobs(getJob(copy), getJob(ticket)), 0);
    EXPECT_EQ(compareJobTicketInfos(ticket, copy), 0);

    // Tickets compare their own attributes only.
    ASSERT_EQ(setIntegerAttribute(getJob(copy), "job-copies", 9), ZUNDO_OK);
    EXPECT_EQ(compareObjects(ticket, copy), 0);
    ASSERT_EQ(setStringAttribute(copy, "jt-jdf-node-id", "n2"), ZUNDO_OK);
    EXPECT_NE(compareObjects(ticket, copy), 0);
    destroy(copy);
    destroy(ticket);
}

TEST(JobClone, GetMediaListsEachDistinctMediaOnceAndOwnsNone) {
    zundo_int_object_s *job = nullptr;
    ASSERT_EQ(newJobNoDocument(&job), ZUNDO_OK);
    zundo_int_object_s *plain = mediaNamed("Plain");
    zundo_int_object_s *cover = mediaNamed("Cover");
    zundo_int_object_s *binding = nullptr;
    ASSERT_EQ(newBinding(&binding, 2, 1), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(binding, "binding-media", mediaNamed("Plain")), ZUNDO_OK);
    zundo_int_object_s *sheets[3] = {};
    ASSERT_EQ(newInsertSheet(&sheets[0], 1, nullptr, cover), ZUNDO_OK);
    ASSERT_EQ(newInsertSheet(&sheets[1], 1, nullptr, mediaNamed("Cover")), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(job, "job-media", plain), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(job, "job-binding", binding), ZUNDO_OK);
    ASSERT_EQ(setObjectsAttribute(job, "job-insert-sheets", sheets), ZUNDO_OK);
    zundo_int_object_s *ticket = nullptr;
    ASSERT_EQ(newJobTicketInfoFromJob(&ticket, job), ZUNDO_OK);

    // The equal copies behind the binding and the second sheet are not listed.
    zundo_int_object_s **media = nullptr;
    ASSERT_EQ(getMedia(ticket, &media), ZUNDO_OK);
    ASSERT_NE(media, nullptr);
    EXPECT_EQ(media[0], plain);
    EXPECT_EQ(media[1], cover);
    EXPECT_EQ(media[2], nullptr);
    EXPECT_EQ(freeMediaList(media), ZUNDO_OK);
    EXPECT_EQ(setStringAttribute(cover, "media-name", "Still owned by its sheet"), ZUNDO_OK);

    EXPECT_EQ(getMedia(job, &media), ZUNDO_INVALID_ARGUMENT);
    EXPECT_EQ(getMedia(ticket, nullptr), ZUNDO_INVALID_ARGUMENT);
    destroy(ticket);
}
