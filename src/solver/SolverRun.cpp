// SPDX-License-Identifier: Apache-2.0
#include "solver/SolverRun.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>
#include <utility>

namespace tarsil::solver {

namespace {

bool isLoopMethod(const std::string& method)
{
    return method == "K";
}

/// A run with its tables, before they are sorted into roots.
struct Group
{
    SolverRun run;
    std::vector<const SummaryTable*> tables;
    std::set<std::int32_t> points;
};

struct KeyLess
{
    bool operator()(const AnalysisKey& a, const AnalysisKey& b) const
    {
        return std::tie(a.subcase, a.method, a.mach, a.sigmaValue, a.densityRatio)
            < std::tie(b.subcase, b.method, b.mach, b.sigmaValue, b.densityRatio);
    }
};

Group newGroup(const SummaryTable& table, std::int32_t cycle)
{
    Group group;
    group.run.key = table.key;
    group.run.cycle = cycle;
    group.run.banner = table.banner;
    group.run.date = table.date;
    group.run.title = table.title;
    group.run.subtitle = table.subtitle;
    group.run.label = table.label;
    group.run.firstLine = table.firstLine;
    return group;
}

/// A POINT that exists in its group already starts the next pass.
std::vector<Group> groupTables(const SummaryFile& file)
{
    std::vector<Group> groups;
    std::map<AnalysisKey, std::size_t, KeyLess> latest; ///< index of the last group of each key
    for (const SummaryTable& table : file.tables) {
        const auto [entry, isFirst] = latest.try_emplace(table.key, groups.size());
        if (isFirst) {
            groups.push_back(newGroup(table, 1));
        } else if (groups[entry->second].points.contains(table.point)) {
            groups.push_back(newGroup(table, groups[entry->second].run.cycle + 1));
            entry->second = groups.size() - 1;
        }
        Group& group = groups[entry->second];
        group.tables.push_back(&table);
        group.points.insert(table.point);
        group.run.lastLine = table.lastLine;
    }
    return groups;
}

std::vector<PrintedRoot> rootsByPoint(const Group& group, bool isNumberedOn)
{
    std::vector<PrintedRoot> roots;
    for (const SummaryTable* table : group.tables) {
        const auto next = static_cast<std::int32_t>(roots.size() + 1);
        roots.push_back({isNumberedOn ? next : table->point, table->rows});
    }
    return roots;
}

std::vector<PrintedRoot> rootsByRow(const Group& group)
{
    std::vector<const SummaryTable*> tables = group.tables;
    std::stable_sort(
        tables.begin(), tables.end(),
        [](const SummaryTable* a, const SummaryTable* b) { return a->point < b->point; });
    std::vector<PrintedRoot> roots;
    for (const SummaryTable* table : tables) {
        for (std::size_t r = 0; r < table->rows.size(); ++r) {
            if (r == roots.size())
                roots.push_back({static_cast<std::int32_t>(r + 1), {}});
            roots[r].rows.push_back(table->rows[r]);
        }
    }
    return roots;
}

void cutToShortest(SolverRun& run)
{
    const auto shorter = [](const PrintedRoot& a, const PrintedRoot& b) {
        return a.rows.size() < b.rows.size();
    };
    const auto [shortest, longest] =
        std::minmax_element(run.roots.begin(), run.roots.end(), shorter);
    const std::size_t length = shortest->rows.size();
    if (length == longest->rows.size())
        return;
    run.wasCut = true;
    run.log.push_back("roots of unequal length: all are cut to the " + std::to_string(length)
                      + " rows of root " + std::to_string(shortest->id));
    for (PrintedRoot& root : run.roots)
        root.rows.resize(length);
}

} // namespace

bool isReducedFrequencyMethod(const std::string& method)
{
    return method == "K" || method == "KE";
}

std::vector<SolverRun> runsOf(const SummaryFile& file)
{
    std::vector<SolverRun> runs;
    std::int32_t lastPoint = 0;
    for (Group& group : groupTables(file)) {
        const bool isNumberedOn = !runs.empty() && *group.points.begin() - 1 == lastPoint;
        lastPoint = *group.points.rbegin();
        group.run.roots = isLoopMethod(group.run.key.method) ? rootsByRow(group)
                                                             : rootsByPoint(group, isNumberedOn);
        cutToShortest(group.run);
        runs.push_back(std::move(group.run));
    }
    return runs;
}

} // namespace tarsil::solver
