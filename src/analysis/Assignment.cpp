// SPDX-License-Identifier: Apache-2.0
#include "analysis/Assignment.h"

#include <algorithm>
#include <limits>

namespace tarsil {

namespace {

constexpr std::size_t none = static_cast<std::size_t>(-1);

/// Builds the assignment row by row. Each row is added along the cheapest alternating path to a
/// free column. Potentials of rows and columns keep all reduced costs non-negative.
class AssignmentBuilder
{
public:
    explicit AssignmentBuilder(const CostMatrix& costs)
        : m_costs(costs), m_rowPotential(costs.size()), m_columnPotential(costs.size()),
          m_rowOfColumn(costs.size(), none)
    { }

    void addRow(std::size_t row);
    std::vector<std::size_t> columns() const;

private:
    struct Search
    {
        explicit Search(std::size_t size)
            : distance(size, std::numeric_limits<double>::infinity()), before(size, none),
              isReached(size, false)
        { }

        std::vector<double> distance; ///< of each column from the new row
        std::vector<std::size_t> before; ///< the previous column on the path
        std::vector<bool> isReached;
    };

    void relax(Search& search, std::size_t row, std::size_t column, double length) const;
    std::size_t nearest(const Search& search) const;
    void shiftPotentials(const Search& search, std::size_t row, double length);

    const CostMatrix& m_costs;
    std::vector<double> m_rowPotential;
    std::vector<double> m_columnPotential;
    std::vector<std::size_t> m_rowOfColumn;
};

/// Updates the distances of the columns that can be reached through `row` after `column`.
void AssignmentBuilder::relax(Search& search, std::size_t row, std::size_t column,
                              double length) const
{
    for (std::size_t c = 0; c < m_costs.size(); ++c) {
        const double reduced = m_costs.at(row, c) - m_rowPotential[row] - m_columnPotential[c];
        if (!search.isReached[c] && length + reduced < search.distance[c]) {
            search.distance[c] = length + reduced;
            search.before[c] = column;
        }
    }
}

std::size_t AssignmentBuilder::nearest(const Search& search) const
{
    std::size_t best = none;
    for (std::size_t c = 0; c < m_costs.size(); ++c) {
        if (!search.isReached[c] && (best == none || search.distance[c] < search.distance[best]))
            best = c;
    }
    return best;
}

void AssignmentBuilder::shiftPotentials(const Search& search, std::size_t row, double length)
{
    m_rowPotential[row] += length;
    for (std::size_t c = 0; c < m_costs.size(); ++c) {
        if (!search.isReached[c] || m_rowOfColumn[c] == none)
            continue;
        m_rowPotential[m_rowOfColumn[c]] += length - search.distance[c];
        m_columnPotential[c] -= length - search.distance[c];
    }
}

void AssignmentBuilder::addRow(std::size_t row)
{
    Search search(m_costs.size());
    relax(search, row, none, 0);
    std::size_t column = nearest(search);
    search.isReached[column] = true;
    while (m_rowOfColumn[column] != none) {
        relax(search, m_rowOfColumn[column], column, search.distance[column]);
        column = nearest(search);
        search.isReached[column] = true;
    }
    shiftPotentials(search, row, search.distance[column]);
    while (search.before[column] != none) {
        m_rowOfColumn[column] = m_rowOfColumn[search.before[column]];
        column = search.before[column];
    }
    m_rowOfColumn[column] = row;
}

std::vector<std::size_t> AssignmentBuilder::columns() const
{
    std::vector<std::size_t> columns(m_costs.size());
    for (std::size_t c = 0; c < m_costs.size(); ++c)
        columns[m_rowOfColumn[c]] = c;
    return columns;
}

} // namespace

std::vector<std::size_t> leastCostAssignment(const CostMatrix& costs)
{
    AssignmentBuilder builder(costs);
    for (std::size_t row = 0; row < costs.size(); ++row)
        builder.addRow(row);
    return builder.columns();
}

double totalCost(const CostMatrix& costs, const std::vector<std::size_t>& columns)
{
    double total = 0;
    for (std::size_t row = 0; row < columns.size(); ++row)
        total += costs.at(row, columns[row]);
    return total;
}

} // namespace tarsil
