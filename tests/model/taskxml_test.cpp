// The task as an XML element: through a DOM, and through the text and the tree that whole documents use.
#include "model/kwtaskinfo_xml.h"
#include "model/randomdocument.h"
#include "support/casename.h"
#include "support/sortedxml.h"
#include "support/xmlsink.h"
#include "support/xmlsource.h"
#include "support/xmltree.h"
#include <QBuffer>
#include <QDomDocument>
#include <gtest/gtest.h>

namespace {

QString utf8(const char *text)
{
    return QString::fromUtf8(text);
}

QDomElement viaDom(QDomDocument &document, const KWTaskInfo &task)
{
    QDomElement root = document.createElement(QStringLiteral("TaskList"));
    document.appendChild(root);
    task.saveTo(root, 0);
    return root;
}

QByteArray viaText(const KWTaskInfo &task)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    StreamSink sink(buffer);
    sink.open("TaskList");
    taskxml::write(sink, task);
    sink.close();
    EXPECT_TRUE(sink.finish());
    return bytes;
}

// What saving would give tells two tasks apart.
std::string shown(const KWTaskInfo &task)
{
    QDomDocument document;
    return sortedXml(viaDom(document, task));
}

TEST(TaskXml, TextAndDomSayTheSameOfAnyTask)
{
    std::mt19937 random(7);
    for (int run = 0; run < 300; ++run) {
        KWTaskInfo task;
        randomdocument::fill(task, random);
        QDomDocument document;
        const std::string dom = sortedXml(viaDom(document, task));
        const QByteArray text = viaText(task);
        ASSERT_EQ(sortedXml(text), dom) << "run " << run;

        KWTaskInfo fromDom;
        fromDom.parse(document.documentElement().firstChildElement(), 0);
        XmlTree tree;
        QString error;
        ASSERT_TRUE(tree.parse(text, &error)) << error.toStdString() << text.constData();
        KWTaskInfo fromText;
        TreeSource source = tree.root().firstChild();
        taskxml::FontMemo memo;
        taskxml::read(source, fromText, &memo);
        // What was saved comes back, and stays so from then on.
        ASSERT_EQ(shown(fromDom), dom) << "run " << run;
        ASSERT_EQ(shown(fromText), dom) << "run " << run;
        EXPECT_EQ(fromText.font, fromDom.font);
    }
}

TEST(TaskXml, AttributesStandInTheOrderOfTheTable)
{
    KWTaskInfo task;
    task.Name = utf8("Wall \"A\" & B\n2");
    task.ID = 4294967295u;
    task.DurationSecs = 4294967295u;
    task.Percent = 0.1;
    task.Depends = {3, 7, 12};
    const QByteArray text = viaText(task);
    const QByteArray expected = " Name=\"Wall &quot;A&quot; &amp; B&#xa;2\" Priority=\"0\" Progress=\"0\" "
                                "Percent=\"0.10000000000000001\" Start=\"0\"";
    EXPECT_TRUE(text.contains(expected)) << text.constData();
    EXPECT_TRUE(text.contains(" DurationSecs=\"4294967295\" DurationUnits=\"4\" Work=\"0\""))
        << text.constData();
    EXPECT_TRUE(
        text.contains(" ID=\"4294967295\" ParentID=\"0\" HideID=\"0\" Depends=\"3;7;12\" Childs=\"\">\n"))
        << text.constData();
}

TEST(TaskXml, EmptyTaskWritesNothing)
{
    KWTaskInfo task;
    task.clear();
    EXPECT_EQ(shown(task), "TaskList\n");
    EXPECT_EQ(sortedXml(viaText(task)), "TaskList\n");
}

struct Reading
{
    const char *name;
    const char *attribute;
    const char *text;
    const char *written; // what is saved afterwards
};

class TaskReading : public testing::TestWithParam<Reading>
{
};

TEST_P(TaskReading, BothWays)
{
    const Reading &row = GetParam();
    // A task that holds something in every field, so that "left as it was" can be told from 0.
    const auto filled = [](KWTaskInfo &task) {
        task.Name = utf8("old");
        task.Start = 5;
        task.ID = 6;
        task.Level = 7;
        task.Cost = 8;
        task.CountWidth = 9;
        task.Milestone = true;
        task.Depends = {2};
    };
    const QByteArray xml = QByteArray("<Task ") + row.attribute + "=\"" + row.text + "\"/>";
    QDomDocument document;
    ASSERT_TRUE(document.setContent(xml));
    KWTaskInfo fromDom;
    filled(fromDom);
    EXPECT_TRUE(fromDom.parse(document.documentElement(), 0));

    XmlTree tree;
    ASSERT_TRUE(tree.parse(xml));
    KWTaskInfo fromTree;
    filled(fromTree);
    TreeSource source = tree.root();
    taskxml::read(source, fromTree);

    EXPECT_EQ(shown(fromTree), shown(fromDom));
    const std::string expected = std::string(" ") + row.attribute + "='" + row.written + "'";
    EXPECT_NE(shown(fromDom).find(expected), std::string::npos) << shown(fromDom);
}

INSTANTIATE_TEST_SUITE_P(
    TaskXml, TaskReading,
    testing::Values(
        Reading{"empty_text_keeps", "Name", "", "old"}, Reading{"empty_number_keeps", "Start", "", "5"},
        Reading{"empty_flag_keeps", "Milestone", "", "1"}, Reading{"word_is_0", "Start", "soon", "0"},
        Reading{"unsigned_limit", "Start", "4294967295", "4294967295"},
        Reading{"id_limit", "ID", "4294967295", "4294967295"},
        Reading{"past_unsigned", "ID", "4294967296", "0"}, Reading{"negative_time", "Start", "-1", "0"},
        Reading{"negative_level", "Level", "-5", "-5"},
        Reading{"least_level", "Level", "-2147483648", "-2147483648"},
        Reading{"past_signed", "Level", "2147483648", "0"}, Reading{"blanks_around", "ID", " 7 ", "7"},
        Reading{"plus", "Level", "+3", "3"}, Reading{"fraction_is_no_whole_number", "Level", "1.5", "0"},
        Reading{"hexadecimal", "ID", "0x10", "0"}, Reading{"flag_of_any_number", "Milestone", "-3", "1"},
        Reading{"flag_of_a_word", "Milestone", "yes", "0"}, Reading{"decimal", "Cost", "2.5", "2.5"},
        Reading{"exponent", "Cost", "1e3", "1000"}, Reading{"comma", "Cost", "1,5", "0"},
        Reading{"nan", "Cost", "nan", "0"}, Reading{"infinite", "Cost", "-inf", "0"},
        Reading{"too_great", "Cost", "1e999", "0"}, Reading{"hex_float", "Cost", "0x1p9", "0"},
        Reading{"least_positive", "Cost", "5e-324", "4.9406564584124654e-324"},
        Reading{"pixels", "CountWidth", "12.5", "12.5"},
        Reading{"ids_join_those_there", "Depends", ";;4;; 5;x;-6;", "2;4;5;0;0"}),
    caseName<Reading>);

struct FontCase
{
    const char *name;
    int weight;
    const char *attributes; // read into a font that is bold, italic and underlined, of 20 points
    const char *bold;       // as written for the weight
    const char *read;       // weight, points, italic, underline
};

class TaskFont : public testing::TestWithParam<FontCase>
{
};

TEST_P(TaskFont, WeightsAndSizes)
{
    const FontCase &row = GetParam();
    KWTaskInfo task;
    task.font.setWeight(row.weight);
    EXPECT_NE(shown(task).find(std::string("Bold='") + row.bold + "'"), std::string::npos);

    QFont font;
    font.setWeight(75);
    font.setItalic(true);
    font.setUnderline(true);
    font.setPointSize(20);
    XmlTree tree;
    ASSERT_TRUE(tree.parse(QByteArray("<Format ") + row.attributes + "/>"));
    TreeSource source = tree.root();
    taskxml::applyFont(source, font);
    EXPECT_EQ(QStringLiteral("%1 %2 %3 %4")
                  .arg(font.weight())
                  .arg(font.pointSize())
                  .arg(font.italic())
                  .arg(font.underline())
                  .toStdString(),
              row.read);
}

INSTANTIATE_TEST_SUITE_P(TaskXml, TaskFont,
                         testing::Values(FontCase{"nothing_said", 57, "", "0", "75 20 1 1"},
                                         FontCase{"bold", 58, "Bold='1' Underline='0'", "1", "75 20 1 0"},
                                         FontCase{"not_bold", 63, "Bold='0'", "1", "50 20 1 1"},
                                         FontCase{"size", 50, "PointSize='9'", "0", "75 9 1 1"},
                                         FontCase{"negative_size", 50, "PointSize='-9'", "0", "75 20 1 1"},
                                         FontCase{"absurd_size", 50, "PointSize='2147483647'", "0",
                                                  "75 20 1 1"}),
                         caseName<FontCase>);

TEST(TaskXml, ChildrenReplaceWhatTheTaskHeld)
{
    KWTaskInfo task;
    task.hyperlinks.autoAddHyperlink();
    task.resourceList.append(new Resource);
    QDomDocument document;
    ASSERT_TRUE(
        document.setContent(QByteArray("<Task><Unknown/><Hyperlinks><Hyperlink Name='H7'/></Hyperlinks>"
                                       "<ResourceList><Resource Name='Ann' Percent='0.5'/><Resource/>"
                                       "</ResourceList></Task>")));
    task.parse(document.documentElement(), 0);
    EXPECT_EQ(task.hyperlinks.count(), 1);
    ASSERT_EQ(task.resourceList.size(), 2);
    EXPECT_EQ(task.resourceList[0]->percent, 0.5);
    EXPECT_EQ(task.resourceList[1]->percent, 1.0);
}

struct Refused
{
    const char *name;
    const char *xml;
};

class TreeRefuses : public testing::TestWithParam<Refused>
{
};

TEST_P(TreeRefuses, WhatIsNoSoundXml)
{
    XmlTree tree;
    QString error;
    EXPECT_FALSE(tree.parse(GetParam().xml, &error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_TRUE(tree.root().isNull());
}

INSTANTIATE_TEST_SUITE_P(XmlTree, TreeRefuses,
                         testing::Values(Refused{"nothing", ""}, Refused{"blanks", "  \n"},
                                         Refused{"text", "{}"}, Refused{"two_roots", "<a/><b/>"},
                                         Refused{"crossed", "<a><b></a></b>"},
                                         Refused{"doctype", "<!DOCTYPE a><a/>"}, Refused{"cut", "<a><b/>"},
                                         Refused{"attribute_twice", "<a><b x='1' y='2' x='3'/></a>"},
                                         Refused{"attribute_twice_later",
                                                 "<a><b x='1' y='2'/><b x='1' y='2'/><b x='1' x='2'/></a>"}),
                         caseName<Refused>);
}
