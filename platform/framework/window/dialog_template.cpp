#include "window/dialog_template.h"

#include "core/framework_text.h"

namespace fx {

namespace {

constexpr WORD kFontPoints = 8;
constexpr wchar_t kFontName[] = L"MS Shell Dlg";
constexpr WORD kAtomFollows = 0xFFFF;

/// Puts the fields of the newer form of templates one behind the other.
class TemplateWriter {
public:
    void Word(WORD value) {
        if (m_isHalf) {
            m_words.back() |= static_cast<DWORD>(value) << 16;
        } else {
            m_words.push_back(value);
        }
        m_isHalf = !m_isHalf;
    }
    void Long(DWORD value) {
        Word(LOWORD(value));
        Word(HIWORD(value));
    }
    void Text(LPCWSTR text) {
        for (; *text != 0; ++text) {
            Word(static_cast<WORD>(*text));
        }
        Word(0);
    }
    void Align() { m_isHalf = false; }
    std::vector<DWORD> Take() { return std::move(m_words); }

private:
    std::vector<DWORD> m_words;
    bool m_isHalf = false; ///< the upper half of the last one is free
};

void WriteHead(TemplateWriter& writer, const DialogShape& shape, WORD count) {
    writer.Word(1);
    writer.Word(0xFFFF);
    writer.Long(0); // help
    writer.Long(0); // extended style
    writer.Long(shape.style | DS_SETFONT | DS_FIXEDSYS);
    writer.Word(count);
    for (const short place : {short{0}, short{0}, shape.width, shape.height}) {
        writer.Word(static_cast<WORD>(place));
    }
    writer.Word(0); // menu
    writer.Word(0); // class
    writer.Text(shape.caption != 0 ? FrameworkText(shape.caption) : CString());
    writer.Word(kFontPoints);
    writer.Word(FW_NORMAL);
    writer.Word(MAKEWORD(FALSE, DEFAULT_CHARSET));
    writer.Text(kFontName);
}

void WriteItem(TemplateWriter& writer, const DialogItem& item) {
    writer.Align();
    writer.Long(0); // help
    writer.Long(item.exStyle);
    writer.Long(item.style | WS_CHILD | WS_VISIBLE);
    for (const short place : {item.x, item.y, item.width, item.height}) {
        writer.Word(static_cast<WORD>(place));
    }
    writer.Long(static_cast<DWORD>(item.id));
    if (item.className != nullptr) {
        writer.Text(item.className);
    } else {
        writer.Word(kAtomFollows);
        writer.Word(static_cast<WORD>(item.control));
    }
    writer.Text(item.text != 0 ? FrameworkText(item.text) : CString());
    writer.Word(0); // nothing of its own
}

} // namespace

std::vector<DWORD> MakeDialogTemplate(const DialogShape& shape, std::span<const DialogItem> items) {
    TemplateWriter writer;
    WriteHead(writer, shape, static_cast<WORD>(items.size()));
    for (const DialogItem& item : items) {
        WriteItem(writer, item);
    }
    return writer.Take();
}

} // namespace fx
