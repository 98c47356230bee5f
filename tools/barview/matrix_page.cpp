#include "matrix_page.h"

#include <varnhold/markup.h>
#include <varnhold/strings.h>

#include <algorithm>
#include <vector>

namespace {

constexpr const char* kStyle = R"(
:root { color-scheme: light dark; font: 15px/1.45 system-ui, sans-serif; }
body { margin: 0 auto; padding: 1rem; max-width: 1800px; }
h1 { font-size: 1.4rem; margin: 0 0 .3rem; } h2 { font-size: 1.15rem; margin: 1.6rem 0 .6rem; }
nav { display: flex; flex-wrap: wrap; gap: .3rem .9rem; margin: .6rem 0; }
.pictures { display: grid; gap: 1rem; grid-template-columns: repeat(auto-fill, minmax(min(100%, 30rem), 1fr)); }
figure { margin: 0; padding: .6rem; border: 1px solid #8886; border-radius: .5rem; min-width: 0; }
figure.changed { border: 2px solid #c50; } figcaption { margin-bottom: .4rem; overflow-wrap: anywhere; }
figcaption b { color: #c50; } img { display: block; width: 100%; height: auto; }
.both { display: grid; gap: .5rem; } .both span { font-size: .85rem; opacity: .8; }
.difference { position: relative; isolation: isolate; filter: brightness(3); }
.difference img + img { position: absolute; inset: 0; mix-blend-mode: difference; }
#all:checked ~ main figure:not(.changed) { display: none; }
)";

std::string Escaped(const std::wstring& text) { return varnhold::EscapedMarkup(wstring2String(text)); }

/// The file as an address: what is no plain letter or digit is written by its number.
std::string Address(const std::wstring& file) {
    constexpr std::string_view plain = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-._/";
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string address;
    for (const char c : wstring2String(file)) {
        const auto byte = static_cast<unsigned char>(c);
        if (plain.find(c) != plain.npos) {
            address += c;
        } else {
            address += {'%', digits[byte / 16U], digits[byte % 16U]};
        }
    }
    return address;
}

std::string Image(const std::wstring& file, const std::string& caption) {
    const std::string address = Address(file);
    return "<a href=\"" + address + "\"><img loading=\"lazy\" src=\"" + address + "\" alt=\"" + caption + "\"></a>";
}

const char* ChangeOf(const MatrixPicture& picture) {
    return picture.file.empty() ? "gone" : picture.before.empty() ? "new" : "changed";
}

std::string Figure(const MatrixPicture& picture) {
    const std::string caption = Escaped(picture.language) + ", " + Escaped(picture.skin) + ", " +
                                std::to_string(picture.scale) + " %, " + std::to_string(picture.width) + " × " +
                                std::to_string(picture.height);
    std::string figure = std::string("<figure") + (picture.isChanged ? " class=\"changed\"" : "") + "><figcaption>" +
                         caption + (picture.isChanged ? " <b>" + std::string(ChangeOf(picture)) + "</b>" : "") +
                         "</figcaption>";
    if (picture.file.empty()) {
        return figure + "<div class=\"both\"><span>before</span>" + Image(picture.before, caption + ", before") +
               "</div></figure>\n";
    }
    const std::string now = Image(picture.file, caption);
    if (!picture.isChanged) {
        return figure + now + "</figure>\n";
    }
    if (picture.before.empty()) {
        return figure + "<div class=\"both\"><span>new</span>" + now + "</div></figure>\n";
    }
    const std::string before = Address(picture.before);
    return figure + "<div class=\"both\"><span>now</span>" + now + "<span>before</span>" +
           Image(picture.before, caption + ", before") +
           "<span>difference</span><div class=\"difference\"><img alt=\"\" src=\"" + Address(picture.file) +
           "\"><img alt=\"difference\" src=\"" + before + "\"></div></div></figure>\n";
}

} // namespace

std::string MatrixPage(const std::wstring& title, std::span<const MatrixPicture> pictures) {
    std::vector<std::wstring> tabs;
    for (const MatrixPicture& picture : pictures) {
        if (std::ranges::find(tabs, picture.tab) == tabs.end()) {
            tabs.push_back(picture.tab);
        }
    }
    const auto changed = std::ranges::count(pictures, true, &MatrixPicture::isChanged);
    std::string links;
    std::string sections;
    for (std::size_t i = 0; i < tabs.size(); ++i) {
        const std::string id = "tab" + std::to_string(i + 1);
        links += "<a href=\"#" + id + "\">" + Escaped(tabs[i]) + "</a>";
        sections += "<section id=\"" + id + "\"><h2>" + Escaped(tabs[i]) + "</h2>\n<div class=\"pictures\">\n";
        for (const MatrixPicture& picture : pictures) {
            sections += picture.tab == tabs[i] ? Figure(picture) : "";
        }
        sections += "</div></section>\n";
    }
    const std::string changes =
        changed == 0
            ? std::string()
            : ", " + std::to_string(changed) +
                  " changed.</p><input type=\"checkbox\" id=\"all\"><label for=\"all\"> changed ones only</label";
    return "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\"><meta name=\"viewport\" "
           "content=\"width=device-width, initial-scale=1\"><title>" +
           Escaped(title) + "</title><style>" + kStyle + "</style></head><body>\n<h1>" + Escaped(title) + "</h1>\n<p>" +
           std::to_string(std::ranges::count_if(pictures, [](const MatrixPicture& one) { return !one.file.empty(); })) +
           " pictures" + (changes.empty() ? ".</p" : changes) + ">\n<nav>" + links + "</nav>\n<main>\n" + sections +
           "</main>\n</body></html>\n";
}
