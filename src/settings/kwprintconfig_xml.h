#pragma once
#include "format/unitutil.h"
#include "settings/kwprintconfig.h"
#include "support/xmltext.h"

// The XML form of the page setup, over any of the XML sinks and sources.
namespace printxml {

// Leaves the code as it was when the text names no unit.
void readUnit(const XmlText &text, quint32 &code);
bool isTrue(const XmlText &text);

template <typename Sink>
void write(Sink &sink, const KWPrintConfig &config)
{
    const auto flag = [&sink](const char *name, bool value) {
        if (value)
            sink.attribute(name, true);
    };
    sink.open("PrintSetup");
    flag("Portrait", config.Portrait);
    flag("FittoSheet", config.FittoSheet);
    if (config.FittoSheet) {
        sink.attribute("HSheet", qint32(config.HSheet));
        sink.attribute("VSheet", qint32(config.VSheet));
    } else {
        sink.attribute("Zoom", config.Zoom);
    }
    flag("Toggle", config.Toggle);
    flag("Background", config.Background);
    sink.attribute("Left", config.Left);
    sink.attribute("Top", config.Top);
    sink.attribute("Width", config.Width);
    sink.attribute("Height", config.Height);
    sink.attribute("Unit", UnitUtil::unitStr(config.Unit));
    sink.close();
}

template <typename Source>
void readSetup(Source &setup, KWPrintConfig &config)
{
    config.Portrait = isTrue(setup.text("Portrait"));
    config.FittoSheet = isTrue(setup.text("FittoSheet"));
    xmltext::read(setup.text("HSheet"), config.HSheet);
    xmltext::read(setup.text("VSheet"), config.VSheet);
    xmltext::read(setup.text("Zoom"), config.Zoom);
    config.Toggle = isTrue(setup.text("Toggle"));
    config.Background = isTrue(setup.text("Background"));
    xmltext::read(setup.text("Left"), config.Left);
    xmltext::read(setup.text("Top"), config.Top);
    xmltext::read(setup.text("Width"), config.Width);
    xmltext::read(setup.text("Height"), config.Height);
    readUnit(setup.text("Unit"), config.Unit);
}

template <typename Source>
void read(Source &source, KWPrintConfig &config)
{
    if (source.isNull())
        return;
    for (Source child = source.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.is("PrintSetup")) {
            readSetup(child, config);
            return;
        }
    }
    readSetup(source, config);
}
}
