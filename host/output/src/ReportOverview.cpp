#include "output/ReportOverview.h"

#include "HtmlPage.h"
#include "ReportText.h"
#include "velkor/text/Wording.h"

#include <algorithm>

namespace velkor::host {

namespace {

void writeCounts(const Html& html, const ProblemSummary& problems) {
    const Page::Style style = problems.total == 0   ? Page::Style::Good
                              : problems.errors > 0 ? Page::Style::Bad
                                                    : Page::Style::Doubtful;
    html << "<td class=\"" << styleClass(style) << "\">" << problemCounts(problems, "none") << "</td>";
}

void writeRow(const Html& html, const OverviewRow& row, std::uint64_t mostInstances) {
    html << "<tr><th scope=\"row\">";
    if (row.page.empty()) {
        html << row.name << "</th><td class=\"bad\" colspan=\"6\">" << row.reason << "</td></tr>\n";
        return;
    }
    html << "<a href=\"" << row.page << "\">" << row.name << "</a></th>";
    writeText(html, row.release);
    writeNumber(html, shortSizeText(row.bytes));
    writeCounts(html, row.problems);
    writeCounts(html, row.setFindings);
    writeNumber(html, text::grouped(row.instances));
    writeBar(html, mostInstances == 0 ? 0.0 : static_cast<double>(row.instances) / static_cast<double>(mostInstances));
}

} // namespace

void writeReportOverview(TextSink out, const std::vector<OverviewRow>& rows) {
    const Html html(out);
    const std::string title = text::counted(rows.size(), "model", "models");
    std::uint64_t most = 0, instances = 0, bad = 0, missing = 0;
    for (const OverviewRow& row : rows) {
        most = std::max(most, row.instances);
        instances += row.instances;
        if (row.page.empty())
            ++missing;
        else if (row.problems.total + row.setFindings.total > 0)
            ++bad;
    }
    beginPage(html, title + " - model reports");
    html << "<header>\n<h1>" << title << "</h1>\n<p>" << text::counted(instances, "instance", "instances") << ", "
         << text::counted(bad, "model", "models") << " with something wrong";
    if (missing > 0) html << ", <span class=\"bad\">" << text::grouped(missing) << " unreadable</span>";
    html << "</p>\n</header>\n<main>\n<section class=\"models\" aria-label=\"Models\">\n";
    beginTable(html, "Models",
               {{"Model"}, {"Release"}, {"Size", true}, {"Problems"}, {"Property sets"}, {"Instances", true}, {"Bar"}});
    for (const OverviewRow& row : rows) writeRow(html, row, most);
    endTable(html);
    html << "</section>\n</main>\n";
    endPage(html);
}

} // namespace velkor::host
