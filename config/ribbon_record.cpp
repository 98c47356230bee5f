#include "config/ribbon_record.h"

void Assign(RibbonInfo& info, const RibbonTexts& texts) {
    info.groupBefore = texts.groupBefore;
    info.name = texts.name;
    info.type = texts.type;
    info.tooltip = texts.tooltip;
    info.keyword = texts.keyword;
    info.picPath = texts.picPath;
    info.picDisPath = texts.picDisPath;
    info.size = texts.size;
    info.cmd = texts.cmd;
    info.param = texts.param;
    info.help = texts.help;
    info.acceptF1 = texts.acceptF1;
    info.cateTab = texts.cateTab;
    info.valueGroup.assign(texts.valueGroup.begin(), texts.valueGroup.end());
    info.width = texts.width;
}
