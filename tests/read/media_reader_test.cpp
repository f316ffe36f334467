// Media resources of a ResourcePool collected into the reader's media list,
// each with the media object made of it.
#include "read/media_reader.h"

#include <gtest/gtest.h>

#include <string>

#include "read/read_test_support.h"
#include "read/reader_conversions.h"
#include "read/resource_dispatch.h"
#include "xml/xml_test_support.h"

namespace {

// The media list the layout pass builds from the ticket's ResourcePool.
struct MediaList {
    explicit MediaList(const std::string &text) : parsed(text) {
        ChildElements children(parsed.root());
        ChildElements resources(children.first("ResourcePool"));
        runResourcePass(resources.entries(), kLayoutPassReaders, kLayoutPassReaderCount, &context);
    }
    ~MediaList() { freeIdElementList(context.mediaList); }
    MediaList(const MediaList &) = delete;
    zundo_int_object_s *media(const char *id) const {
        const IdElement *entry = findIdElement(context.mediaList, id);
        return entry != nullptr ? entry->media : nullptr;
    }

    ParsedTicket parsed;
    ResourceReadContext context = {nullptr, nullptr, nullptr, nullptr, nullptr};
};

zundo_int_object_s *firstObject(zundo_int_object_s *object, const char *name) {
    zundo_int_attribute_s *attribute = get(object, name);
    auto *first = static_cast<zundo_int_object_s *>(hasNextValue(attribute) ? nextValue(attribute)
                                                                            : nullptr);
    destroyAttribute(attribute);
    return first;
}

const char kMediaPool[] =
    "<ResourcePool>"
    "<Media ID='M1' Class='Consumable' DescriptiveName='First' HoleType='R6-generic'"
    " MediaTypeDetails='Special' MediaType='Paper' Thickness='thin' Weight='heavy'"
    " Preprinted='maybe' Locked='true' Dimension='595' MediaColorName='White'"
    " morvellan:OverrideSnapshot='Dimension Other'>"
    "<Comment Name='morvellan:ReadOnly'>false</Comment>"
    "<Comment Name='Description' Attribute='Dimension'>inch</Comment>"
    "<Comment Name='Description'>note</Comment>"
    "<Comment Name='morvellan:Favorite'>true</Comment>"
    "<Comment Name='Orientation'>LongEdgeFeed</Comment>"
    "<HoleList><HoleLine><Hole Center='1 2' Shape='Elliptic'/></HoleLine></HoleList>"
    "<GeneralID IDValue='A'/><GeneralID IDUsage='Other' IDValue='B'/>"
    "<TabDimensions TabWidth='12.5' TabOffset='x'/>"
    "</Media>"
    "<Media ID='M2' HoleType='None' MediaType='Transparency' MediaTypeDetails='Clear'"
    " Dimension='100 200' MediaColorName='LightViolet' PrePrinted='false'/>"
    "<Media ID='M3' HoleType='S-generic'/>"
    "<Media ID='M4' HoleType='Q-generic' Locked='maybe'>"
    "<Comment Name='morvellan:ReadOnly'>true</Comment></Media>"
    "<Media Class='Consumable'/>"
    "</ResourcePool>"
    "<ResourceLinkPool>"
    "<MediaLink rRef='M3' Usage='Output' ActualAmount='1'/>"
    "<MediaLink rRef='M2' Usage='Input' ActualAmount='7.5'/>"
    "</ResourceLinkPool>"
    "<AuditPool>"
    "<ResourceAudit TimeStamp='2020-01-01T00:00:00+00:00'><MediaLink rRef='M3'/></ResourceAudit>"
    "<ResourceAudit TimeStamp='2021-06-07T08:09:10+00:00'><MediaLink rRef='M2'/></ResourceAudit>"
    "</AuditPool>";

TEST(MediaReader, AttributesFollowTheirConversionRules) {
    MediaList list(jdfTicket(kMediaPool, "xmlns:morvellan='Morvellan'"));
    zundo_int_object_s *first = list.media("M1");
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(textOf(first, "media-name"), "First");
    EXPECT_EQ(intOf(first, "media-hole-count"), 6);
    // A MediaTypeDetails decides the details whichever comes first.
    EXPECT_EQ(textOf(first, "media-type-details"), "Special");
    EXPECT_EQ(doubleOf(first, "media-thickness"), 0.0);
    EXPECT_EQ(doubleOf(first, "media-weight"), -12345.0);
    EXPECT_EQ(intOf(first, "media-preprinted"), -12345);
    EXPECT_EQ(intOf(first, "media-read-only"), 1);
    EXPECT_EQ(doubleOf(first, "media-x-dimension"), -12345.0);
    EXPECT_EQ(intOf(first, "media-color"), -12345);
    EXPECT_EQ(intOf(first, "media-override-snapshot"), 1);
    EXPECT_EQ(textOf(first, "media-units"), "inch");
    EXPECT_EQ(textOf(first, "media-comment"), "note");
    EXPECT_EQ(intOf(first, "media-favorite"), 1);
    EXPECT_EQ(intOf(first, "media-feed-edge"), 1);
    EXPECT_EQ(textOf(first, "media-id"), "B");
    EXPECT_EQ(doubleOf(first, "media-tab-width"), 12.5);
    EXPECT_EQ(doubleOf(first, "media-tab-offset"), 0.0);
    zundo_int_object_s *line = firstObject(firstObject(first, "media-hole-list"),
                                           "hole-list-hole-lines");
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(doubleOf(line, "hole-line-pitch"), 0.0);
    zundo_int_object_s *hole = firstObject(line, "hole-line-hole");
    EXPECT_EQ(doubleOf(hole, "hole-center-y"), 2.0);
    EXPECT_EQ(intOf(hole, "hole-shape"), 1);

    zundo_int_object_s *second = list.media("M2");
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(intOf(second, "media-hole-count"), 0);
    EXPECT_EQ(textOf(second, "media-type-details"), "Clear");
    EXPECT_EQ(doubleOf(second, "media-y-dimension"), 200.0);
    EXPECT_EQ(intOf(second, "media-color"), 60);
    EXPECT_EQ(intOf(second, "media-preprinted"), 0);

    EXPECT_EQ(intOf(list.media("M3"), "media-hole-count"), -1);
    // No count matches neither the table nor the R<n> pattern; a Locked
    // that is no boolean leaves the read-only comment to decide.
    EXPECT_EQ(intOf(list.media("M4"), "media-hole-count"), -12345);
    EXPECT_EQ(intOf(list.media("M4"), "media-read-only"), 1);
    int entries = 0;
    while (list.context.mediaList[entries] != nullptr) ++entries;
    EXPECT_EQ(entries, 4);
}

TEST(MediaReader, AmountUsedComesFromTheInputLinkAndItsAudit) {
    MediaList list(jdfTicket(kMediaPool, "xmlns:morvellan='Morvellan'"));
    EXPECT_EQ(doubleOf(list.media("M2"), "media-amount-used"), 7.5);
    EXPECT_EQ(dateTimeOf(list.media("M2"), "media-amount-used-time-stamp"),
              "2021-06-07T08:09:10+00:00");
    // An Output link says nothing about the media used.
    EXPECT_EQ(doubleOf(list.media("M3"), "media-amount-used"), -12345.0);
    EXPECT_EQ(dateTimeOf(list.media("M3"), "media-amount-used-time-stamp"), "-");
}

}  // namespace
