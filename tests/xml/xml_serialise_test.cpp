// Creating a document for writing, serialising it as pretty-printed UTF-8
// and reading it back; the Base64 codec.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "xml_test_support.h"

XERCES_CPP_NAMESPACE_USE

namespace {

zundo_status_t create(DOMDocumentInfo *info, const char *version, const char *encoding) {
    *info = DOMDocumentInfo{};
    info->xmlVersion = version;
    info->xmlEncoding = encoding;
    info->standalone = 1;
    return createDOMDocument(info).status;
}

TEST(XmlSerialise, CreationNeedsVersionAndEncoding) {
    DOMDocumentInfo info;
    EXPECT_EQ(ZUNDO_NULL_ARGUMENT, createDOMDocument(nullptr).status);
    EXPECT_EQ(ZUNDO_MISSING_FIELD, create(&info, "1.0", nullptr));
    EXPECT_EQ(ZUNDO_MISSING_FIELD, create(&info, nullptr, "UTF-8"));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, create(&info, "2.5", "UTF-8"));
    EXPECT_EQ(nullptr, info.document);
    EXPECT_EQ(nullptr, serializeDOMDocument(nullptr));
}

TEST(XmlSerialise, CreatedDocumentIsPrettyPrintedUtf8AndReadsBack) {
    DOMDocumentInfo info;
    ASSERT_EQ(ZUNDO_OK, create(&info, "1.0", "UTF-8"));
    DOMDocument *document = info.document;
    DOMElement *root = document->createElement(u"JDF");
    document->appendChild(root);
    root->setAttribute(u"DescriptiveName", u"Brosch\u00FCre \u20AC");
    DOMElement *pool = document->createElement(u"ResourcePool");
    root->appendChild(pool);
    pool->appendChild(document->createElement(u"Media"));
    char *serialised = serializeDOMDocument(document);
    ASSERT_NE(nullptr, serialised);
    std::string text = serialised;
    releaseXMLString(serialised);
    ASSERT_EQ(ZUNDO_OK, releaseDOMDocument(document).status);

    EXPECT_EQ(0u, text.find("<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"")) << text;
    EXPECT_NE(std::string::npos, text.find("DescriptiveName=\"Brosch\xC3\xBCre \xE2\x82\xAC\""));
    size_t poolAt = text.find("\n  <ResourcePool>");
    EXPECT_NE(std::string::npos, poolAt) << text;
    EXPECT_LT(poolAt, text.find("\n    <Media/>"));

    ParsedTicket back(text);
    ASSERT_EQ(ZUNDO_OK, back.result.status);
    EXPECT_STREQ("UTF-8", back.info.xmlEncoding);
    EXPECT_EQ("Brosch\xC3\xBCre \xE2\x82\xAC", utf8(back.root()->getAttribute(u"DescriptiveName")));
}

TEST(XmlSerialise, Base64RoundTripsBinaryData) {
    const unsigned char data[] = {0, 1, 2, 0xFE, 0xFF, 'J', 'D', 'F', 0};
    unsigned char *encoded = nullptr;
    ASSERT_EQ(ZUNDO_OK, encodeBase64(data, sizeof data, &encoded));
    EXPECT_EQ(0, std::strncmp("AAEC/v9KREYA", reinterpret_cast<char *>(encoded), 12));
    unsigned long length = 0;
    unsigned char *decoded = nullptr;
    ASSERT_EQ(ZUNDO_OK, decodeBase64(encoded, &length, &decoded));
    ASSERT_EQ(sizeof data, length);
    EXPECT_EQ(0, std::memcmp(data, decoded, length));
    releaseXMLString(reinterpret_cast<char *>(encoded));
    releaseXMLString(reinterpret_cast<char *>(decoded));

    EXPECT_EQ(ZUNDO_OK, decodeBase64(reinterpret_cast<const unsigned char *>("@@"), &length, &decoded));
    EXPECT_EQ(nullptr, decoded);
    EXPECT_EQ(0ul, length);
}

}  // namespace
