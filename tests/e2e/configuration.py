"""What a ribbon file and the language tables must build, worked out from the files alone."""
import os
import xml.etree.ElementTree as xml

F1_HINT = "按F1键获得此功能视频"
RECENT_FILES = "QK_DEF_ZJWJ"  # takes no id
FIRST_ID = 41000
# Of the lists of each kind of combo; None: the framework's own.
COMBO_HEIGHTS = {"QKRIBBONCHECKCOMB": 560, "QKRIBBONMULTICOMB": 560, "QKRIBBONMULTICOMB2": None}
XLIFF = "{urn:oasis:names:tc:xliff:document:2.0}"


def read_texts(folder, section="RibbonBarCfg"):
    texts = {}
    for name in sorted(os.listdir(folder)):
        for file in xml.parse(os.path.join(folder, name)).getroot().iter(XLIFF + "file"):
            if file.get("id") != section:
                continue
            for unit in file.iter(XLIFF + "unit"):
                source, target = unit.find(f".//{XLIFF}source"), unit.find(f".//{XLIFF}target")
                texts[unit.get("name")] = (target.text if target is not None else None) or source.text
    return texts


class Expectation:
    """Registry and ribbon that a file builds in a process that has built nothing before."""

    def __init__(self, ribbon_file, language_folder):
        self._texts = read_texts(language_folder)
        self.registry = {}
        self.commands = []
        self.next_id = FIRST_ID
        self.categories = []
        quick_access = []
        for row in xml.parse(ribbon_file).getroot():
            if row.get("KEYWORD") == "QK_Rbbion_QAToolbar":
                quick_access += [item.get("KEYWORD") for item in row]
            elif row.get("KEYWORD") != "StatusEx_btns":
                self.categories += [self._category(node) for node in row]
        self.quick_access = [self.registry[k]["id"] for k in quick_access if k in self.registry]

    def _record(self, node, before=None):
        record = {"keyword": "", "name": "", "tooltip": "", "type": "", "size": 0, "help": "", "acceptF1": True,
                  "cateTab": False, "groupBefore": False,
                  "cmd": before["cmd"] if before else "", "param": before["param"] if before else ""}
        for name, value in node.attrib.items():
            name = name.upper()
            record["groupBefore"] = False
            if name in ("KEYWORD", "IDKEY"):
                record["keyword"] = value
            elif name == "NAME":
                record["name"] = self._texts.get(record["keyword"], record["keyword"])
            elif name == "TOOLTIP":
                record["tooltip"] = self._texts.get(record["keyword"] + ".tooltip", "")
            elif name in ("TYPE", "CMD", "PARAM", "HELP"):
                record[name.lower()] = value
            elif name == "SIZE":
                record["size"] = int(value)
            elif name == "GROUPBEFORE":
                record["groupBefore"] = value.upper() == "Y"
            elif name == "ACCEPTF1" and value.upper() == "N":
                record["acceptF1"] = False
            elif name == "CATETAB":
                record["cateTab"] = value.upper() == "Y"
        if not record["help"] and record["acceptF1"]:
            record["help"] = record["name"] + ".swf"
        self.commands.append(record["cmd"])
        return record

    def _id(self, record):
        known = self.registry.get(record["keyword"])
        if known:
            return known["id"]
        taken, self.next_id = self.next_id, self.next_id + 1
        if record["keyword"]:
            self.registry[record["keyword"]] = {"id": taken, **{k: record[k] for k in ("keyword", "name", "tooltip", "cmd", "param", "help")}}
        return taken

    def add_menu(self, menu_file):
        """A menu behind the ribbon: its items take ids for the keywords that are new."""
        for item in xml.parse(menu_file).getroot().iter("item"):
            keyword = item.get("KEYWORD")
            if keyword and keyword != RECENT_FILES and keyword not in self.registry:
                self.registry[keyword] = {"id": self.next_id, "keyword": keyword, "name": self._texts.get(keyword, keyword),
                                          "tooltip": self._texts.get(keyword + ".tooltip", ""), "cmd": item.get("CMD", ""),
                                          "param": item.get("Param", ""), "help": ""}
                self.next_id += 1

    def _category(self, node):
        record = self._record(node)
        category = {"name": record["name"], "class": "CMFCRibbonCategory", "panels": []}
        if not record["cateTab"]:
            category["class"] = "CMFCRibbonCategoryEx"
            category["id"] = self._id(record)
        for child in node:
            record = self._record(child, record)
            panel = {"name": record["name"], "elements": []}
            for element in child:
                self._add(element, panel["elements"])
            category["panels"].append(panel)
        return category

    def _add(self, node, elements):
        record = self._record(node)
        identity = self._id(record)
        # The framework adds no separator to an empty panel.
        if record["groupBefore"] and elements:
            elements.append({"class": "CMFCRibbonSeparator", "id": 0, "text": ""})
        kind = record["type"].upper()
        element = {"class": "CMFCRibbonButtonsGroup", "id": 0, "text": ""} if kind == "GROUP" else self._element(identity, record)
        if len(node) and kind not in ("GROUP", "BUTTON"):
            return  # Only buttons and groups have children; anything else that has some is left out.
        children = []
        for child in node:
            record = self._record(child, record)
            children.append(self._element(self._id(record), record))
        if children or kind == "GROUP":
            element["children"] = children
        elements.append(element)

    @staticmethod
    def _element(identity, record):
        kind = record["type"].upper()
        if kind == "BUTTON":
            return {"class": "CMFCRibbonSmallButton" if record["size"] == 16 else "CMFCRibbonUNIcoButton", "id": identity,
                    "text": record["name"], "tooltip": record["tooltip"] or None,
                    "description": F1_HINT if record["acceptF1"] else ""}
        classes = {"SLIDER": "CMFCRibbonSlider", "LABEL": "CMFCRibbonLabel", "EDIT": "CMFCRibbonEdit",
                   "QKRIBBONCHECKCOMB": "CMFCRibbonCheckComb", "QKRIBBONMULTICOMB": "CMFCRibbonMultiCombo",
                   "QKRIBBONMULTICOMB2": "CMFCRibbonVesMultiCombo"}
        element = {"class": classes[kind], "id": identity, "description": ""}
        if kind in COMBO_HEIGHTS:
            # The host fills the combos.
            element.update(text=record["name"], tooltip=record["tooltip"], items=[], selected=-1)
            if COMBO_HEIGHTS[kind]:
                element.update(dropDownHeight=COMBO_HEIGHTS[kind])
        elif kind == "SLIDER":
            element.update(text=record["name"], tooltip=record["tooltip"], pos=0, min=0, max=100)
        elif kind == "LABEL":
            element.update(text=record["name"])
        else:
            element.update(tooltip=record["tooltip"])
        return element
