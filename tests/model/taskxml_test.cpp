// The task as an XML element: through a DOM, and through the text and the tree that whole documents use.
#include "model/kwtaskinfo_xml.h"
#include "model/randomdocument.h"
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
    const char *name, *attribute, *text;
    const char *written; // what is saved afterwards
};

TEST(TaskReading, BothWays)
{
    const Reading cases[] = {{"empty_text_keeps", "Name", "", "old"},
                             {"empty_number_keeps", "Start", "", "5"},
                             {"word_is_0", "Start", "soon", "0"},
                             {"id_limit", "ID", "4294967295", "4294967295"},
                             {"past_unsigned", "ID", "4294967296", "0"},
                             {"least_level", "Level", "-2147483648", "-2147483648"},
                             {"past_signed", "Level", "2147483648", "0"},
                             {"blanks_around", "ID", " 7 ", "7"},
                             {"fraction_is_no_whole_number", "Level", "1.5", "0"},
                             {"hexadecimal", "ID", "0x10", "0"},
                             {"flag_of_any_number", "Milestone", "-3", "1"},
                             {"flag_of_a_word", "Milestone", "yes", "0"},
                             {"nan", "Cost", "nan", "0"},
                             {"too_great", "Cost", "1e999", "0"},
                             {"hex_float", "Cost", "0x1p9", "0"},
                             {"least_positive", "Cost", "5e-324", "4.9406564584124654e-324"},
                             {"ids_join_those_there", "Depends", ";;4;; 5;x;-6;", "2;4;5;0;0"}};
    for (const Reading &row : cases) {
        SCOPED_TRACE(row.name);
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
}

struct FontCase
{
    const char *name;
    int weight;
    const char *attributes; // read into a font that is bold, italic and underlined, of 20 points
    const char *bold;       // as written for the weight
    const char *read;       // weight, points, italic, underline
};

TEST(TaskFont, WeightsAndSizes)
{
    const FontCase cases[] = {{"nothing_said", 57, "", "0", "75 20 1 1"},
                              {"bold", 58, "Bold='1' Underline='0'", "1", "75 20 1 0"},
                              {"not_bold", 63, "Bold='0'", "1", "50 20 1 1"},
                              {"size", 50, "PointSize='9'", "0", "75 9 1 1"},
                              {"negative_size", 50, "PointSize='-9'", "0", "75 20 1 1"},
                              {"absurd_size", 50, "PointSize='2147483647'", "0", "75 20 1 1"}};
    for (const FontCase &row : cases) {
        SCOPED_TRACE(row.name);
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
}

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
    const char *name, *xml;
};

TEST(TreeRefuses, WhatIsNoSoundXml)
{
    const Refused cases[] = {
        {"nothing", ""},
        {"text", "{}"},
        {"two_roots", "<a/><b/>"},
        {"doctype", "<!DOCTYPE a><a/>"},
        {"attribute_twice", "<a><b x='1' y='2' x='3'/></a>"},
        {"attribute_twice_later", "<a><b x='1' y='2'/><b x='1' y='2'/><b x='1' x='2'/></a>"}};
    for (const Refused &row : cases) {
        SCOPED_TRACE(row.name);
        XmlTree tree;
        QString error;
        EXPECT_FALSE(tree.parse(row.xml, &error));
        EXPECT_FALSE(error.isEmpty());
        EXPECT_TRUE(tree.root().isNull());
    }
}

}
