#include "config/check/configuration_check.h"
#include "reports.h"
#include "sound_sink.h"
#include "tests/support/temporary_directory.h"

#include <array>
#include <string>

namespace {

constexpr std::array kFiles = {"cfg/ribbon.xml", "cfg/menu.xml",     "cfg/toolbar.xml",
                               "lang/en/a.xlf",  "lang/zh-CN/a.xlf", "pic/icon/16/open.ico"};

/// A directory whose files are written anew where they differ.
class Installation {
public:
    void Write(std::string_view bytes) {
        for (std::size_t i = 0; i < kFiles.size(); ++i) {
            const std::size_t end = bytes.find(kFileBorder);
            const std::string_view text = bytes.substr(0, end);
            if (!m_isWritten || m_texts.at(i) != text) {
                m_directory.Write(kFiles.at(i), text);
                m_texts.at(i) = text;
            }
            bytes = end == std::string_view::npos ? std::string_view() : bytes.substr(end + kFileBorder.size());
        }
        m_isWritten = true;
    }
    std::wstring Directory() const { return m_directory.Prefix(); }

private:
    TemporaryDirectory m_directory;
    std::array<std::string, kFiles.size()> m_texts;
    bool m_isWritten = false;
};

} // namespace

void FuzzBarcheck(std::string_view bytes) {
    static Installation s_installation;
    s_installation.Write(bytes);
    const std::vector<Diagnostic> findings = CheckConfiguration({s_installation.Directory(), {}, {}});
    for (const Diagnostic& finding : findings) {
        DemandSound(finding);
    }
    Demand(TextReport(findings, s_installation.Directory()).empty() == findings.empty());
    // The form SARIF is written as JSON is, with the long list of all codes each time.
    Demand((JsonReport(findings) == JsonReport({})) == findings.empty());
    Demand(GithubReport(findings).empty() == findings.empty());
}
