#include "config/diagnostic_codes.h"
#include "reports.h"

#include <nlohmann/json.hpp>
#include <varnhold/strings.h>

namespace {

using Json = nlohmann::ordered_json;

constexpr int kIndent = 2;

std::string Write(const Json& json) { return json.dump(kIndent, ' ', false, Json::error_handler_t::replace) + "\n"; }

/// A path as a reference in a URI.
std::string UriOf(const std::wstring& file) {
    constexpr std::string_view plain = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-._~/";
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string uri;
    for (const char c : wstring2String(file)) {
        if (plain.find(c) != std::string_view::npos) {
            uri += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            uri += {'%', digits[byte / 16], digits[byte % 16]};
        }
    }
    return uri;
}

Json LocationOf(const std::wstring& file, varnhold::TextPosition position) {
    return {{"physicalLocation",
             {{"artifactLocation", {{"uri", UriOf(file)}}},
              {"region", {{"startLine", position.line}, {"startColumn", position.column}}}}}};
}

Json RuleOf(const DiagnosticCode& code) {
    return {{"id", code.code},
            {"shortDescription", {{"text", code.meaning}}},
            {"fullDescription", {{"text", std::string(code.meaning) + " " + std::string(code.effect)}}},
            {"help", {{"text", code.mend}}},
            {"defaultConfiguration", {{"level", NameOf(code.severity)}}}};
}

} // namespace

std::string JsonReport(const std::vector<Diagnostic>& findings) {
    Json report = Json::array();
    for (const Diagnostic& finding : findings) {
        Json entry = {{"file", wstring2String(finding.file)},
                      {"line", finding.position.line},
                      {"column", finding.position.column},
                      {"severity", NameOf(finding.severity)},
                      {"code", finding.code},
                      {"message", wstring2String(finding.text)}};
        if (!finding.fix.empty()) {
            entry["fix"] = wstring2String(finding.fix);
        }
        for (const RelatedPlace& place : finding.related) {
            entry["related"].push_back({{"file", wstring2String(place.file)},
                                        {"line", place.position.line},
                                        {"message", wstring2String(place.text)}});
        }
        report.push_back(std::move(entry));
    }
    return Write(report);
}

std::string SarifReport(const std::vector<Diagnostic>& findings, const std::wstring& folder) {
    Json rules = Json::array();
    for (const DiagnosticCode& code : DiagnosticCodes()) {
        rules.push_back(RuleOf(code));
    }
    Json results = Json::array();
    for (const Diagnostic& finding : findings) {
        const std::wstring text = finding.fix.empty() ? finding.text : finding.text + L" (" + finding.fix + L")";
        Json result = {{"ruleId", finding.code},
                       {"ruleIndex", FindDiagnosticCode(finding.code) - DiagnosticCodes().data()},
                       {"level", NameOf(finding.severity)},
                       {"message", {{"text", wstring2String(text)}}},
                       {"locations", Json::array({LocationOf(folder + finding.file, finding.position)})}};
        for (const RelatedPlace& place : finding.related) {
            Json related = LocationOf(folder + place.file, place.position);
            related["message"] = {{"text", wstring2String(place.text)}};
            result["relatedLocations"].push_back(std::move(related));
        }
        results.push_back(std::move(result));
    }
    Json run = {{"tool", {{"driver", {{"name", "barcheck"}, {"rules", std::move(rules)}}}}},
                {"columnKind", "unicodeCodePoints"},
                {"results", std::move(results)}};
    return Write({{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
                  {"version", "2.1.0"},
                  {"runs", Json::array({std::move(run)})}});
}
