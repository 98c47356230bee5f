"""Installations at random: what people write, and what they should not."""
import os
import random
import struct
from xml.sax.saxutils import quoteattr

KEYWORDS = ["Open", "Save", "ZoomIn", "ZoomOut", "Layers", "Place", "打开", "a b", "Separator", "Print", "Undo", "Redo", "Find"]
TYPES = ["BUTTON"] * 8 + ["button", "GROUP", "SLIDER", "label", "edit", "qkRibbonCheckComb", "qkRibbonMultiComb",
                          "qkRibbonMultiComb2", "BUTON", ""]
BAR_TYPES = ["button"] * 6 + ["BUTTON", "separate", "qkLayerCheckCtrl", "qkLayerMultiCtrl", "qkLayerMultiCtrl2", "unknown"]
ICONS = ["pic\\a.ico", "pic\\b.ico", "pic\\broken.ico", "pic\\none.ico", ""]
SHORTCUTS = ["Ctrl+S", "Ctrl+Shift+7", "Alt+q", "F", "F5", "Shift+ctrl+X", "Ctrl", "A", "3", "Ctrl+Alt+Shift+Z"]


class Maker:
    def __init__(self, seed):
        self.random = random.Random(seed)

    def chance(self, share):
        return self.random.random() < share

    def keyword(self):
        return self.random.choice(KEYWORDS) if self.chance(0.4) else f"Key{self.random.randrange(40)}"

    def attributes(self, pairs):
        """Most in their order, each now and then left out; names in any letter case."""
        pairs = [pair for pair in pairs if not self.chance(0.08)]
        if self.chance(0.1):
            self.random.shuffle(pairs)
        if self.chance(0.05):
            pairs.insert(self.random.randrange(len(pairs) + 1), ("ODD", "value"))
        text, seen = "", set()
        for name, value in pairs:
            name = self.random.choice([name, name, name, name.lower(), name.capitalize()])
            if name not in seen:
                text += f" {name}={quoteattr(str(value))}"
            seen.add(name)
        return text

    def element(self, name, pairs, children=()):
        start = f"<{name}{self.attributes(pairs)}"
        if self.chance(0.03):
            start = f"<!-- {name} -->" + start
        return f"{start}>{''.join(children)}</{name}>\n" if children else f"{start}/>\n"

    def some(self, least, most, make):
        return [make() for _ in range(self.random.randint(least, most))]

    # --- ribbon files

    def item(self, children=()):
        pairs = [("KEYWORD", self.keyword()), ("NAME", ""), ("TOOLTIP", ""), ("TYPE", self.random.choice(TYPES)),
                 ("SIZE", self.random.choice(["16", "32", "32", "24", "big", ""])), ("PICPATH", self.random.choice(ICONS)),
                 ("CMD", self.random.choice(["run", "open it", ""])), ("PARAM", self.random.choice(["1", "中文", ""]))]
        for pair in (("WIDTH", self.random.choice(["100", "-3", "wide"])), ("help", "own.swf"), ("AcceptF1", self.random.choice("YN")),
                     ("VALUEGROUP", "a,,b"), ("PICDISPATH", "pic\\a.ico"), ("GROUPBEFORE", self.random.choice("YNy"))):
            if self.chance(0.25):
                pairs.append(pair)
        return self.element("item", pairs, children)

    def with_children(self):
        if self.chance(0.7):
            return self.item()
        kind = self.random.choice(["BUTTON", "GROUP", "GROUP", "SLIDER"])
        pairs = [("KEYWORD", self.keyword()), ("NAME", ""), ("TYPE", kind), ("SIZE", self.random.choice(["16", "32"]))]
        return self.element("group", pairs, self.some(0, 4, self.item))

    def panel(self):
        pairs = [("KEYWORD", self.keyword()), ("NAME", "")] + ([("CMD", "panel")] if self.chance(0.5) else [])
        return self.element("panel", pairs, self.some(0, 5, self.with_children))

    def category(self):
        pairs = [("KEYWORD", self.keyword()), ("NAME", ""), ("CATETAB", self.random.choice("YNN"))]
        return self.element("category", pairs, self.some(0, 4, self.panel))

    def row(self):
        kind = self.random.random()
        if kind < 0.2:
            return self.element("row", [("KEYWORD", "QK_Rbbion_QAToolbar")],
                                [self.element("item", [("KEYWORD", self.keyword())]) for _ in range(4)])
        if kind < 0.35:
            return self.element("row", [("KEYWORD", "StatusEx_btns")], self.some(0, 4, self.item))
        return self.element("row", [("KEYWORD", "Main")], self.some(0, 3, self.category))

    def ribbon(self):
        return f"<ribbon>\n{''.join(self.some(1, 4, self.row))}</ribbon>\n"

    # --- menu files

    def menu_item(self):
        if self.chance(0.15):
            return self.element("item", [("MENUNAME", "SEPARATOR")])
        pairs = [("KEYWORD", self.random.choice([self.keyword(), self.keyword(), "QK_DEF_ZJWJ"])), ("MENUNAME", ""), ("TOOLTIP", "")]
        if self.chance(0.5):
            pairs.append(("SHORTKEY", self.random.choice("FOS")))
        if self.chance(0.5):
            pairs.append(("HOTKEY", "Ctrl+" if self.chance(0.02) else self.random.choice(SHORTCUTS)))
        pairs += [("CMD", "menu"), ("Param", "2"), ("PicPath", self.random.choice(ICONS))]
        return self.element("item", pairs)

    def popup(self, depth=0):
        inside = self.some(1, 5, self.menu_item)
        if depth < 3 and self.chance(0.5):
            inside.insert(self.random.randrange(len(inside) + 1), self.popup(depth + 1))
        return self.element("popup", [("KEYWORD", self.keyword()), ("MENUNAME", ""), ("SHORTKEY", "F")], inside)

    def menu(self):
        parts = [self.element("group", [], self.some(1, 3, self.popup)) if self.chance(0.8) else self.menu_item()
                 for _ in range(self.random.randint(1, 3))]
        return f"<menu>\n{''.join(parts)}</menu>\n"

    # --- toolbar files

    def button(self):
        return self.element("button", [("TYPE", self.random.choice(BAR_TYPES)), ("KEYWORD", self.keyword()),
                                       ("PROMPT", self.random.choice(["Open it", "保存", ""])), ("TOOLTIP", "hint"),
                                       ("PICPATH", self.random.choice(ICONS))])

    def bar(self):
        return self.element("bar", [("PROMPT", self.random.choice(["Standard", "Bars", ""]))], self.some(0, 6, self.button))

    def bars(self):
        groups = [self.element("group", [("KEYWORD", self.random.choice(["Main", "Other", ""]))], self.some(0, 3, self.bar))
                  for _ in range(self.random.randint(1, 3))]
        return f"<toolbars>\n{''.join(groups)}</toolbars>\n"

    # --- the rest

    def unit(self, number, key, target):
        """`target`: whether the table translates; some units do not, or are faulty."""
        source = f"<source>{key} &amp; co</source>"
        translated = self.random.choice([f"<target>{key} übersetzt</target>", f"<target>{key} 译</target>", "<target/>", ""]) if target else ""
        segment = f"<segment>{source}{translated}</segment>" if not self.chance(0.05) else ""
        name = f" name={quoteattr(key)}" if not self.chance(0.05) else ""
        return f'<unit id="u{number}"{name}>{segment}</unit>\n'

    def table(self, language="en", count=30):
        keys = [self.keyword() + self.random.choice(["", "", ".tooltip"]) for _ in range(count)]
        if not self.chance(0.2):
            keys = list(dict.fromkeys(keys))  # otherwise some stand twice
        units = "".join(self.unit(number, key, language != "en") for number, key in enumerate(keys))
        target = f' trgLang="{language}"' if language != "en" else ""
        section = "RibbonBarCfg" if not self.chance(0.05) else "Other"
        return (f'<xliff xmlns="urn:oasis:names:tc:xliff:document:2.0" version="2.0" srcLang="en"{target}><file id="{section}">\n'
                f"{units}</file></xliff>\n")

    def broken(self, text):
        return text[:self.random.randrange(len(text))] if self.chance(0.03) else text

    def files(self):
        files = {"cfg/ribbon.xml": self.broken(self.ribbon())}
        for name, share, make in (("ribbon-b", 0.3, self.ribbon), ("menu", 0.8, self.menu), ("menu-b", 0.2, self.menu),
                                  ("toolbar", 0.8, self.bars), ("toolbar-b", 0.2, self.bars)):
            if self.chance(share):
                files[f"cfg/{name}.xml"] = self.broken(make())
        files["lang/en/a.xlf"] = self.table()
        files["lang/de/a.xlf"] = self.table("de")
        if self.chance(0.5):
            files["lang/de/b.xlf"] = self.table("de", 10)
        return files


def icon(side):
    """An icon file with one picture of 32 bits."""
    pixels = b"\x20\x40\x80\xff" * side * side + b"\0" * (side * 4)
    picture = struct.pack("<IiiHHIIiiII", 40, side, 2 * side, 1, 32, 0, 0, 0, 0, 0, 0) + pixels
    return struct.pack("<HHHBBBBHHII", 0, 1, 1, side, side, 0, 0, 1, 32, len(picture), 22) + picture


def write(folder, seed):
    """Writes the installation of a number; the same number makes the same one."""
    files = {name: text.encode() for name, text in Maker(seed).files().items()}
    for side in (16, 32):
        files[f"pic/{side}/a.ico"] = files[f"pic/{side}/b.ico"] = icon(side)
        files[f"pic/{side}/broken.ico"] = b"no icon"
    for name, data in files.items():
        path = os.path.join(folder, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "wb") as file:
            file.write(data)
