// Job, document and job-ticket objects: construction, the print-parameter
// block under each owner's prefix, the document list and ownership.
#include <gtest/gtest.h>

#include <string>

#include "job/read_env.h"
#include "support/sample_type.h"
#include "zundo.h"

namespace {

// The first value of an integer attribute, or `none` when it has no value.
int intOf(zundo_int_object_s *object, const char *name, int none = -12345) {
    zundo_int_attribute_s *attribute = get(object, name);
    int value = hasNextValue(attribute) ? *static_cast<int *>(nextValue(attribute)) : none;
    destroyAttribute(attribute);
    return value;
}

std::string textOf(zundo_int_object_s *object, const char *name) {
    zundo_int_attribute_s *attribute = get(object, name);
    std::string value = hasNextValue(attribute) ? static_cast<char *>(nextValue(attribute)) : "-";
    destroyAttribute(attribute);
    return value;
}

std::string rangeOf(zundo_int_object_s *object, const char *name) {
    zundo_int_attribute_s *attribute = get(object, name);
    char text[ZUNDO_RANGE_TEXT_SIZE] = "-";
    if (getNumValues(attribute) == 1)
        toStringRange(text, static_cast<zundo_range_s *>(nextValue(attribute)));
    destroyAttribute(attribute);
    return text;
}

zundo_int_object_s *newTestJob(const char *fileName = "a.pdf") {
    zundo_int_object_s *document = nullptr;
    zundo_int_object_s *job = nullptr;
    EXPECT_EQ(newDocument(&document, fileName), ZUNDO_OK);
    EXPECT_EQ(newJob(&job, document), ZUNDO_OK);
    return job;
}

}  // namespace

TEST(JobObjects, NewJobAndDocumentStartAtTheirDefaults) {
    zundo_int_object_s *job = newTestJob();
    zundo_int_object_s *document = getDocuments(job)[0];
    EXPECT_EQ(getDocuments(job)[1], nullptr);
    EXPECT_EQ(intOf(job, "job-copies"), 1);
    EXPECT_EQ(rangeOf(job, "job-include-pages"), "0 ~ -1");
    EXPECT_EQ(intOf(job, "job-priority"), -12345);
    EXPECT_EQ(intOf(job, "job-number-up-copies"), -12345);
    EXPECT_EQ(textOf(document, "document-file-name"), "a.pdf");
    EXPECT_EQ(rangeOf(document, "document-include-pages"), "0 ~ -1");
    EXPECT_EQ(intOf(document, "document-number-pages-bw"), -12345);
    destroy(job);

    zundo_int_object_s *unnamed = nullptr;
    ASSERT_EQ(newDocument(&unnamed, nullptr), ZUNDO_OK);
    EXPECT_EQ(textOf(unnamed, "document-file-name"), "-");
    destroy(unnamed);
}

TEST(JobObjects, ConstructorsAndLookupsRefuseWrongObjects) {
    zundo_int_object_s *job = newTestJob();
    zundo_int_object_s *document = getDocuments(job)[0];
    zundo_int_object_s *out = nullptr;
    EXPECT_EQ(newJob(&out, nullptr), ZUNDO_INVALID_ARGUMENT);
    EXPECT_EQ(newJob(&out, job), ZUNDO_INVALID_ARGUMENT);
    EXPECT_EQ(newJob(nullptr, document), ZUNDO_INVALID_ARGUMENT);
    EXPECT_EQ(newJobTicketInfoFromJob(&out, document), ZUNDO_INVALID_ARGUMENT);
    EXPECT_EQ(getDocuments(document), nullptr);
    EXPECT_EQ(getJob(job), nullptr);
    destroy(job);
}

// Every listed name answers under that same name, so the block's prefix
// handling covers the whole of its table.
TEST(JobObjects, AttributeNamesListOwnThenPrefixedBlockNames) {
    struct Owner {
        zundo_int_object_s *object;
        int own;
        const char *prefix;
    };
    zundo_int_object_s *job = newTestJob();
    const Owner owners[] = {{job, 255, "job-"}, {getDocuments(job)[0], 14, "document-"}};
    for (const Owner &owner : owners) {
        char **names = getAttributeNames(owner.object);
        ASSERT_NE(names, nullptr);
        int count = 0;
        for (; names[count] != nullptr; count++) {
            zundo_int_attribute_s *attribute = get(owner.object, names[count]);
            ASSERT_NE(attribute, nullptr) << names[count];
            EXPECT_STREQ(getName(attribute), names[count]);
            destroyAttribute(attribute);
        }
        EXPECT_EQ(count, owner.own + 30);
        EXPECT_EQ(std::string(names[owner.own]), std::string(owner.prefix) + "binding");
        EXPECT_EQ(std::string(names[count - 1]), std::string(owner.prefix) + "trimming");
        freeAttributeNames(names);
    }
    destroy(job);
}

TEST(JobObjects, BlockAttributesAreReachedWithOrWithoutThePrefix) {
    zundo_int_object_s *job = newTestJob();
    zundo_int_object_s *document = getDocuments(job)[0];
    zundo_int_object_s *media = newSample();
    ASSERT_EQ(setObjectAttribute(job, "job-media", media), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(job, "job-sides", 2), ZUNDO_OK);
    ASSERT_EQ(setIntegerAttribute(document, "document-sides", 3), ZUNDO_OK);

    zundo_int_attribute_s *prefixed = get(job, "job-media");
    EXPECT_STREQ(getName(prefixed), "job-media");
    EXPECT_EQ(nextValue(prefixed), media);
    zundo_int_attribute_s *bare = get(job, "media");
    EXPECT_STREQ(getName(bare), "media");
    EXPECT_EQ(nextValue(bare), media);
    destroyAttribute(prefixed);
    destroyAttribute(bare);

    EXPECT_EQ(intOf(job, "job-sides"), 2);
    EXPECT_EQ(intOf(document, "document-sides"), 3);
    EXPECT_EQ(setIntegerAttribute(job, "job-no-such-thing", 1), ZUNDO_NOT_FOUND);
    EXPECT_EQ(get(job, "document-sides"), nullptr);
    destroy(job);
}

TEST(JobObjects, DocumentsAreKeptInOrderAndOwnedByTheJob) {
    zundo_int_object_s *job = nullptr;
    ASSERT_EQ(newJobNoDocument(&job), ZUNDO_OK);
    EXPECT_EQ(getDocuments(job)[0], nullptr);
    zundo_int_object_s *first = nullptr;
    zundo_int_object_s *second = nullptr;
    ASSERT_EQ(newDocument(&first, "1.pdf"), ZUNDO_OK);
    ASSERT_EQ(newDocument(&second, "2.pdf"), ZUNDO_OK);
    ASSERT_EQ(addDocument(job, first), ZUNDO_OK);
    ASSERT_EQ(addDocument(job, second), ZUNDO_OK);
    EXPECT_EQ(addDocument(job, second), ZUNDO_INVALID_ARGUMENT);
    EXPECT_EQ(addDocument(first, second), ZUNDO_INVALID_ARGUMENT);
    EXPECT_EQ(addDocument(job, job), ZUNDO_INVALID_ARGUMENT);
    zundo_int_object_s **documents = getDocuments(job);
    EXPECT_EQ(documents[0], first);
    EXPECT_EQ(documents[1], second);
    EXPECT_EQ(documents[2], nullptr);
    // Each document carries a sample; all of them die with the job.
    ASSERT_EQ(setObjectAttribute(first, "document-media", newSample()), ZUNDO_OK);
    ASSERT_EQ(setObjectAttribute(second, "document-container", newSample()), ZUNDO_OK);
    int destroyedBefore = sampleObjectsDestroyed;
    destroy(job);
    EXPECT_EQ(sampleObjectsDestroyed, destroyedBefore + 2);
}

TEST(JobObjects, TicketHoldsTheJobAndItsOwnDefaults) {
    zundo_int_object_s *job = newTestJob();
    ASSERT_EQ(setObjectAttribute(job, "job-media", newSample()), ZUNDO_OK);
    zundo_int_object_s *ticket = nullptr;
    ASSERT_EQ(newJobTicketInfoFromJob(&ticket, job), ZUNDO_OK);
    EXPECT_EQ(getJob(ticket), job);
    EXPECT_EQ(textOf(ticket, "jt-charset"), "UTF-8");
    EXPECT_EQ(textOf(ticket, "jt-type"), "JDF");
    EXPECT_EQ(textOf(ticket, "jt-syntax-version"), "1.4");
    EXPECT_EQ(textOf(ticket, "jt-api-version"), getZUNDOCurrentVersion());
    EXPECT_EQ(textOf(ticket, "jt-jdf-node-id"), "-");

    zundo_read_env_s *env = getReadEnv(ticket);
    ASSERT_NE(env, nullptr);
    EXPECT_EQ(getReadEnv(job), nullptr);
    EXPECT_EQ(env->processCount, 0);
    EXPECT_EQ(env->processes[ZUNDO_READ_ENV_PROCESSES - 1].index, -1);
    EXPECT_EQ(env->pendingBindingMedia, nullptr);
    env->pendingBindingMedia = newSample();

    int destroyedBefore = sampleObjectsDestroyed;
    destroy(ticket);  // the job, its media and the pending media go with it
    EXPECT_EQ(sampleObjectsDestroyed, destroyedBefore + 2);
}
