// A task's hyperlinks: their kinds, their addresses, and both stored forms.
#include "editing/kwhyperlink.h"
#include "model/kwdocument.h"
#include <QDomDocument>
#include <gtest/gtest.h>
#include <limits>
#include <memory>

namespace {

QString utf8(const char *text)
{
    return QString::fromUtf8(text);
}

std::string shown(const KWHyperlink &link)
{
    return QStringList({QString::number(link.ID), QString::number(link.type),
                        link.isDefault ? utf8("default") : QString(), link.name, link.description,
                        link.address, link.subAddress, link.relatAddress, link.extraInfo})
        .join(QLatin1Char('|'))
        .toStdString();
}

std::string shown(const KWHyperlinkSheet &sheet)
{
    std::string text;
    for (int index = 0; index < sheet.count(); ++index)
        text += shown(*sheet.getAt(index)) + "\n";
    return text;
}

KWHyperlink link(int id, const char *name, const char *address)
{
    KWHyperlink made;
    made.ID = id;
    made.name = utf8(name);
    made.address = utf8(address);
    made.type = KWHyperlink::hyperlinkType(made.address);
    return made;
}

KWHyperlinkSheet sheetOf(const QVector<KWHyperlink> &links)
{
    KWHyperlinkSheet sheet;
    for (const KWHyperlink &each : links)
        sheet.appendHyperlink(new KWHyperlink(each));
    return sheet;
}

KWHyperlinkSheet fullSheet()
{
    KWHyperlink full = link(-3, "Site <\"&'> \u5de5", "www.example.com");
    full.isDefault = true;
    full.description = utf8("two\nlines\tand a tab");
    full.subAddress = utf8("Page-1");
    full.relatAddress = utf8("../a b.kwpx");
    full.extraInfo = utf8(" ");
    return sheetOf({full, link(7, "", "plan.pdf"), KWHyperlink()});
}

// ---- Kinds and addresses ----------------------------------------------------------------------------------

struct TypeCase
{
    const char *name;
    const char *address;
    int type;
    const char *url;
};

TEST(LinkType, followsFromTheAddress)
{
    const TypeCase cases[] = {{"siteWithoutScheme", "example.com", 3, "http://example.com"},
                              {"ftpAnywhere", "get ftp:example.net", 3, "get ftp:example.net"},
                              {"keptSourceFileIsASite", "main.cc", 3, "http://main.cc"},
                              {"keptSiteWithPathIsAFile", "http://example.com/a", 2, "http://example.com/a"},
                              {"keptCaseCounts", "EXAMPLE.COM", 2, "EXAMPLE.COM"},
                              {"folder", "/", 4, "/"},
                              {"missingFolder", "/no/such/folder/", 1, "/no/such/folder/"},
                              {"empty", "", 1, ""}};
    for (const TypeCase &c : cases) {
        SCOPED_TRACE(c.name);
        const KWHyperlink made = link(1, "", c.address);
        EXPECT_EQ(made.type, c.type);
        EXPECT_EQ(made.getWebPageUrl().toStdString(), c.url);
    }
}

struct AddressCase
{
    const char *name;
    const char *documentPath;
    const char *address;
    const char *real;
};

constexpr const char *plan = "/home/u/plans/p.kwpx";

TEST(RealAddress, startsAtTheDocumentsFolder)
{
    const AddressCase cases[] = {{"below", plan, "docs\\a.pdf", "/home/u/plans/docs/a.pdf"},
                                 {"oneUp", plan, "../a.pdf", "/home/u/a.pdf"},
                                 {"pastTheRoot", plan, "../../../../../a.pdf", "/a.pdf"},
                                 {"upInTheMiddle", plan, "docs/../a//b.pdf", "/home/u/plans/a/b.pdf"},
                                 {"hiddenFile", plan, ".a/..b", "/home/u/plans/.a/..b"},
                                 {"absolute", plan, "/srv/../a.pdf", "/srv/../a.pdf"},
                                 {"withScheme", plan, "https://example.com/../a", "https://example.com/../a"},
                                 {"drive", plan, "C:\\docs\\a.pdf", "C:/docs/a.pdf"},
                                 {"empty", plan, "", ""},
                                 {"relativeDocument", "p.kwpx", "../a.pdf", "../a.pdf"},
                                 {"documentAtTheRoot", "/p.kwpx", "../a.pdf", "/a.pdf"}};
    for (const AddressCase &c : cases) {
        SCOPED_TRACE(c.name);
        KWDocument document;
        document.setFilePath(utf8(c.documentPath), QString());
        EXPECT_EQ(link(1, "", c.address).addressReal(&document, false).toStdString(), c.real);
    }
}

TEST(RealAddressFlag, prefersTheRelativeAddressThatIsThere)
{
    KWDocument document;
    document.setFilePath(utf8(plan), QString());
    KWHyperlink made = link(1, "", "/old/a.pdf");
    EXPECT_EQ(made.addressReal(&document, true).toStdString(), "/old/a.pdf");
    made.relatAddress = utf8("../a.pdf");
    EXPECT_EQ(made.addressReal(&document, true).toStdString(), "/home/u/a.pdf");
    EXPECT_EQ(made.addressReal(&document, false).toStdString(), "/old/a.pdf");
    EXPECT_EQ(made.addressReal(nullptr, true).toStdString(), "../a.pdf");
}

TEST(LinkedDocument, givesThePlaceInsideIt)
{
    const auto placeIn = [](const char *address) {
        KWHyperlink made = link(1, "", address);
        made.subAddress = utf8("Walls");
        EXPECT_EQ(made.linkedPageName(), made.linkedTaskName());
        return made.linkedTaskName().toStdString();
    };
    for (const char *address : {"b.kwpx", "b.hbnx", "dir/b.kwx"})
        EXPECT_EQ(placeIn(address), "Walls") << address;
    for (const char *address : {"b.kwpx.pdf", "b.KWPX", ""})
        EXPECT_EQ(placeIn(address), "") << address;
}

// ---- The list ---------------------------------------------------------------------------------------------

TEST(LinkSheet, findsRenamesAndDeletes)
{
    KWHyperlinkSheet sheet = sheetOf({link(1, "a", "x"), link(2, "b", "y"), link(2, "B", "z")});
    EXPECT_EQ(sheet.getByID(2), sheet.getAt(1));
    EXPECT_EQ(sheet.getByID(3), nullptr);
    EXPECT_EQ(sheet.getByName(utf8("B"), true), sheet.getAt(2));
    EXPECT_EQ(sheet.getByName(utf8("B"), false), sheet.getAt(1));
    EXPECT_EQ(sheet.getAt(-1), nullptr);
    EXPECT_EQ(sheet.getAt(3), nullptr);
    sheet.appendHyperlink(nullptr);

    sheet.reNameHyperlink(1, utf8("b")); // taken
    sheet.reNameHyperlink(9, utf8("c")); // no such link
    EXPECT_EQ(sheet.content(false).toStdString(), "a;b;B");
    sheet.reNameHyperlink(1, utf8("c"));
    EXPECT_FALSE(sheet.isNameExist(1, utf8("c")));
    EXPECT_TRUE(sheet.isNameExist(2, utf8("c")));
    sheet.deleteHyperlink(2);
    sheet.deleteHyperlink(7);
    EXPECT_EQ(sheet.content(false).toStdString(), "c;B");
}

TEST(LinkSheet, addsLinksWithFreshNamesAndIDs)
{
    KWHyperlinkSheet sheet = sheetOf({link(4, "H2", "x"), link(-9, "h1", "y")});
    EXPECT_EQ(shown(*sheet.autoAddHyperlink()), "5|1||H1|||||");
    EXPECT_EQ(shown(*sheet.autoAddHyperlink()), "6|1||H3|||||");
    EXPECT_EQ(sheet.count(), 4);
    sheet.getAt(0)->ID = std::numeric_limits<qint32>::max();
    sheet.getAt(1)->ID = 1;
    EXPECT_EQ(shown(*sheet.autoAddHyperlink()), "2|1||H4|||||");
}

TEST(LinkSheet, copiesAreDeep)
{
    KWHyperlinkSheet source = fullSheet();
    const std::string before = shown(source);
    const KWHyperlinkSheet copy(source);
    KWHyperlinkSheet assigned = sheetOf({link(1, "old", "x")});
    assigned = source;
    QVector<KWHyperlink> links{*source.getAt(0), *source.getAt(1), *source.getAt(2)};
    KWHyperlinkSheet fromVector = sheetOf({link(1, "old", "x")});
    fromVector.assignFrom(links);
    source.getAt(0)->name = utf8("changed");
    source.deleteHyperlinkSheet();
    const KWHyperlinkSheet &itself = assigned;
    assigned = itself;
    EXPECT_EQ(shown(source), "");
    EXPECT_EQ(shown(copy), before);
    EXPECT_EQ(shown(assigned), before);
    EXPECT_EQ(shown(fromVector), before);
}

// ---- Stored forms -----------------------------------------------------------------------------------------

TEST(LinkXml, hostileElementsLeaveDefaults)
{
    QDomDocument document;
    ASSERT_TRUE(document.setContent(QByteArray(
        "<Hyperlinks><Other/><Hyperlink ID='99999999999' Type='x' Default='true'><Address/>"
        "<Address V='a.pdf'/><Address V=''/><Odd V='q'/></Hyperlink><Hyperlink Default='TRUE' ID='-1'/>"
        "<Hyperlinks><Hyperlink Name='inner'/></Hyperlinks></Hyperlinks>")));
    KWHyperlinkSheet sheet;
    EXPECT_TRUE(sheet.parse(document.documentElement(), 14));
    EXPECT_EQ(shown(sheet), "0|1||||a.pdf|||\n-1|1|default||||||\n");
}

QByteArray packed(const KWHyperlinkSheet &sheet)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    sheet.write(stream);
    return bytes;
}

TEST(LinkStream, comesBackAndStopsAtEveryCut)
{
    const KWHyperlinkSheet sheet = fullSheet();
    const std::string whole = shown(sheet);
    const QByteArray bytes = packed(sheet);
    for (int length = 0; length <= bytes.size(); ++length) {
        QDataStream stream(bytes.left(length));
        KWHyperlinkSheet again = sheetOf({link(1, "old", "x")});
        EXPECT_EQ(again.read(stream), length == bytes.size());
        EXPECT_EQ(whole.rfind(shown(again), 0), 0u) << length; // the links before the cut, and no other
        EXPECT_EQ(again.count() == sheet.count(), length == bytes.size());
    }
}

TEST(LinkStream, hostileCountsReserveNothing)
{
    for (qint32 count : {std::numeric_limits<qint32>::max(), -1, std::numeric_limits<qint32>::min()}) {
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        out << count;
        QDataStream in(bytes);
        KWHyperlinkSheet sheet;
        EXPECT_FALSE(sheet.read(in)) << count;
        EXPECT_TRUE(sheet.isEmpty());
    }
}
}
