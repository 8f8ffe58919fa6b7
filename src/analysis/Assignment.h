// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <vector>

namespace tarsil {

/// A square matrix of costs; row r pays `at(r, c)` for column c.
class CostMatrix
{
public:
    explicit CostMatrix(std::size_t size) : m_size(size), m_costs(size * size) { }

    std::size_t size() const { return m_size; }
    double& at(std::size_t row, std::size_t column) { return m_costs[row * m_size + column]; }
    double at(std::size_t row, std::size_t column) const { return m_costs[row * m_size + column]; }

private:
    std::size_t m_size;
    std::vector<double> m_costs;
};

/// Returns the column of each row in an assignment of least total cost, in O(n^3) (Kuhn, Naval
/// Research Logistics Quarterly 2, 1955; Munkres, J. SIAM 5, 1957). Costs must be finite.
std::vector<std::size_t> leastCostAssignment(const CostMatrix& costs);

/// The total cost of an assignment.
double totalCost(const CostMatrix& costs, const std::vector<std::size_t>& columns);

} // namespace tarsil
