#pragma once

#include "checked_installation.h"
#include "planted_faults.h"

#include <array>

/// A small installation without a fault: two of each kind of file and two languages.
struct SampleFile {
    const char* name;
    std::string text;
};

inline std::string SampleRibbon() {
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<ribbon>
  <row KEYWORD="QK_Rbbion_QAToolbar">
    <item KEYWORD="Open"/>
    <item KEYWORD="ZoomIn"/>
  </row>
  <row KEYWORD="StatusEx_btns">
    <item KEYWORD="Separator"/>
    <item KEYWORD="Scale" NAME="" TOOLTIP="" TYPE="slider" WIDTH="100"/>
    <item KEYWORD="Measure" TOOLTIP="" PICPATH="pic\icon\ruler.ico" TYPE="BUTTON"/>
    <item KEYWORD="Layers" NAME="" TYPE="Label"/>
  </row>
  <row KEYWORD="Main">
    <category KEYWORD="CatMap" NAME="" CATETAB="Y">
      <panel KEYWORD="PanelFile" NAME="" CMD="file">
        <item KEYWORD="Open" NAME="" TOOLTIP="" TYPE="BUTTON" SIZE="32" PICPATH="pic\icon\open.ico" CMD="open" help="open.swf"/>
        <item KEYWORD="Save" NAME="" TOOLTIP="" TYPE="BUTTON" SIZE="16" PICPATH="pic\icon\save.ico" CMD="save" PARAM="all" GROUPBEFORE="Y"/>
      </panel>
      <panel KEYWORD="PanelZoom" NAME="" CMD="zoom">
        <item KEYWORD="ZoomIn" NAME="" TYPE="BUTTON" SIZE="16" PICPATH="pic\icon\zoom.ico" CMD="zoom" PARAM="2">
          <item KEYWORD="ZoomTwo" NAME="" TYPE="BUTTON" SIZE="16" PICPATH="pic\icon\zoom.ico" CMD="zoom" PARAM="2"/>
          <item KEYWORD="ZoomFour" NAME="" TYPE="BUTTON" SIZE="16" PICPATH="pic\icon\zoom.ico" CMD="zoom" PARAM="4"/>
        </item>
        <group KEYWORD="Moves" TYPE="GROUP">
          <item KEYWORD="West" NAME="" TYPE="BUTTON" SIZE="16" PICPATH="pic\icon\west.ico" CMD="move" PARAM="w"/>
          <item KEYWORD="East" NAME="" TYPE="BUTTON" SIZE="16" PICPATH="pic\icon\east.ico" CMD="move" PARAM="e"/>
        </group>
        <item KEYWORD="ScaleLabel" NAME="" TYPE="label"/>
        <item KEYWORD="Scale" TOOLTIP="" TYPE="SLIDER" WIDTH="120" CMD="scale"/>
        <item KEYWORD="Place" TOOLTIP="" TYPE="edit" WIDTH="130" CMD="place" AcceptF1="N"/>
        <item KEYWORD="Filter" NAME="" TOOLTIP="" TYPE="edit" WIDTH="90" CMD="filter"/>
        <item KEYWORD="Layers" NAME="" TYPE="qkRibbonCheckComb" CMD="layers"/>
      </panel>
    </category>
    <category KEYWORD="CatTools" NAME="">
      <panel KEYWORD="PanelTools" NAME="">
        <item KEYWORD="Measure" NAME="" TOOLTIP="" TYPE="BUTTON" SIZE="32" PICPATH="pic\icon\measure.ico" CMD="measure"/>
      </panel>
    </category>
  </row>
</ribbon>
)";
}

inline std::string SampleMenu() {
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<menu>
  <group>
    <popup KEYWORD="MenuFile" MENUNAME="" SHORTKEY="F">
      <item KEYWORD="Open" MENUNAME="" SHORTKEY="O" PicPath="pic\icon\open.ico"/>
      <item KEYWORD="Print" MENUNAME="" TOOLTIP="" SHORTKEY="P" HOTKEY="Ctrl+P" CMD="print"/>
      <item MENUNAME="SEPARATOR"/>
      <popup KEYWORD="MenuRecent" MENUNAME="" SHORTKEY="R">
        <item KEYWORD="QK_DEF_ZJWJ"/>
      </popup>
      <item KEYWORD="Exit" MENUNAME="" SHORTKEY="X" HOTKEY="Alt+X" CMD="exit"/>
    </popup>
    <popup KEYWORD="MenuEdit" MENUNAME="" SHORTKEY="E">
      <item KEYWORD="Undo" MENUNAME="" SHORTKEY="U" HOTKEY="Ctrl+Z" CMD="undo"/>
      <item KEYWORD="Redo" MENUNAME="" SHORTKEY="R" HOTKEY="Ctrl+Shift+Z" CMD="undo" Param="redo"/>
    </popup>
  </group>
</menu>
)";
}

inline std::string SampleToolBars() {
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<toolbars>
  <group KEYWORD="Main">
    <bar PROMPT="Standard">
      <item TYPE="button" PROMPT="Open" PICPATH="pic\icon\open.ico" KEYWORD="Open" TOOLTIP="Opens a map"/>
      <item TYPE="separate"/>
      <item TYPE="button" PROMPT="Find" PICPATH="pic\icon\find.ico" KEYWORD="Find" TOOLTIP="Finds a place"/>
    </bar>
    <bar PROMPT="Layers">
      <item TYPE="qkLayerCheckCtrl" KEYWORD="LayerList"/>
      <item TYPE="qkLayerMultiCtrl2" KEYWORD="LightList"/>
    </bar>
  </group>
</toolbars>
)";
}

/// In the table of a translated language every unit has a target.
inline std::string SampleTable(const std::string& language) {
    constexpr const char* keys[] = {
        "CatMap",    "CatTools",       "East",      "Exit",          "Layers",     "Measure",       "Measure.tooltip",
        "Filter",    "Filter.tooltip", "MenuEdit",  "MenuFile",      "MenuRecent", "Open",          "Open.tooltip",
        "PanelFile", "PanelTools",     "PanelZoom", "Place.tooltip", "Print",      "Print.tooltip", "Redo",
        "Save",      "Save.tooltip",   "Scale",     "Scale.tooltip", "ScaleLabel", "Undo",          "West",
        "ZoomFour",  "ZoomIn",         "ZoomTwo",
    };
    const bool isSource = language == "en";
    std::string text = R"(<?xml version="1.0" encoding="UTF-8"?>
<xliff xmlns="urn:oasis:names:tc:xliff:document:2.0" version="2.0" srcLang="en")";
    text += (isSource ? "" : " trgLang=\"" + language + "\"") + std::string(">\n  <file id=\"RibbonBarCfg\">\n");
    for (const std::string key : keys) {
        text += "    <unit id=\"" + key + "\"><segment><source>" + key + "</source>" +
                (isSource ? "" : "<target>" + language + " " + key + "</target>") + "</segment></unit>\n";
    }
    return text + "  </file>\n</xliff>\n";
}

inline std::array<SampleFile, 5> SampleFiles() {
    return {{{"cfg/ribbon.xml", SampleRibbon()},
             {"cfg/menu.xml", SampleMenu()},
             {"cfg/toolbar.xml", SampleToolBars()},
             {"lang/en/a.xlf", SampleTable("en")},
             {"lang/de/a.xlf", SampleTable("de")}}};
}

inline void WriteSample(const CheckedInstallation& installation) {
    for (const SampleFile& file : SampleFiles()) {
        installation.Write(file.name, file.text);
    }
    for (const char* name : {"open", "save", "zoom", "west", "east", "measure", "find", "ruler"}) {
        installation.WriteIcon("pic/icon", std::string(name) + ".ico");
    }
}

/// The sample's file with the fault in it; empty when the place is not there once.
inline std::string MarkedFault(const PlantedFault& fault) {
    for (const SampleFile& file : SampleFiles()) {
        if (file.name != std::string_view(fault.file)) {
            continue;
        }
        std::string text = file.text;
        const std::size_t at = text.find(fault.before);
        if (at == std::string::npos || text.find(fault.before, at + 1) != std::string::npos) {
            return {};
        }
        return text.replace(at, std::string_view(fault.before).size(), fault.after);
    }
    return {};
}

/// The same without the mark.
inline std::string TextWithFault(const PlantedFault& fault) {
    std::string text = MarkedFault(fault);
    const std::size_t mark = text.find(kMark);
    return mark == std::string::npos ? text : text.erase(mark, std::string_view(kMark).size());
}
