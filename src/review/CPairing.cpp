#include "CPairing.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <queue>
#include <tuple>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

// A grid of buckets over the newer items' first points. An item taken is
// removed from its bucket, so searches only meet free items.
class Grid
{
public:
    explicit Grid(const std::vector<CPairing::Item>& items) : m_items(items)
    {
        double minX = infinity, minY = infinity, maxX = -infinity, maxY = -infinity;
        for (const auto& item : items) {
            minX = std::min(minX, item.X);
            minY = std::min(minY, item.Y);
            maxX = std::max(maxX, item.X);
            maxY = std::max(maxY, item.Y);
        }
        m_minX = minX;
        m_minY = minY;
        const double width = std::max(maxX - minX, 1.0);
        const double height = std::max(maxY - minY, 1.0);
        // About two items per cell.
        m_cell = std::max(std::sqrt(width * height * 2 / static_cast<double>(items.size())), 1.0);
        m_columns = static_cast<int>(width / m_cell) + 1;
        m_rows = static_cast<int>(height / m_cell) + 1;
        m_buckets.resize(static_cast<std::size_t>(m_columns) * static_cast<std::size_t>(m_rows));
        m_slot.resize(items.size());
        for (std::size_t i = 0; i < items.size(); ++i) {
            auto& bucket = m_buckets[bucketOf(items[i])];
            m_slot[i] = bucket.size();
            bucket.push_back(static_cast<int>(i));
        }
        m_free = items.size();
    }

    std::size_t Free() const { return m_free; }

    void Take(int index)
    {
        auto& bucket = m_buckets[bucketOf(m_items[static_cast<std::size_t>(index)])];
        const std::size_t slot = m_slot[static_cast<std::size_t>(index)];
        const int last = bucket.back();
        bucket[slot] = last;
        m_slot[static_cast<std::size_t>(last)] = slot;
        bucket.pop_back();
        --m_free;
    }

    // The free newer item nearest to item, with its cost; -1 when none.
    std::pair<int, double> Nearest(const CPairing::Item& item) const
    {
        const int cx = column(item.X);
        const int cy = row(item.Y);
        int best = -1;
        double bestCost = infinity;
        const int maxRing = std::max({cx, m_columns - 1 - cx, cy, m_rows - 1 - cy});
        for (int ring = 0; ring <= maxRing; ++ring) {
            for (int y = cy - ring; y <= cy + ring; ++y) {
                if (y < 0 || y >= m_rows)
                    continue;
                const bool edgeRow = y == cy - ring || y == cy + ring;
                for (int x = cx - ring; x <= cx + ring; x += edgeRow ? 1 : 2 * ring) {
                    if (x >= 0 && x < m_columns)
                        scan(item, x, y, best, bestCost);
                    if (ring == 0)
                        break;
                }
            }
            // Every cell beyond this ring lies at least ring cells away.
            if (best >= 0 && bestCost <= ring * m_cell)
                break;
        }
        return {best, bestCost};
    }

private:
    int column(double x) const
    {
        return std::clamp(static_cast<int>((x - m_minX) / m_cell), 0, m_columns - 1);
    }
    int row(double y) const
    {
        return std::clamp(static_cast<int>((y - m_minY) / m_cell), 0, m_rows - 1);
    }
    std::size_t bucketOf(const CPairing::Item& item) const
    {
        return static_cast<std::size_t>(row(item.Y)) * static_cast<std::size_t>(m_columns) +
               static_cast<std::size_t>(column(item.X));
    }
    void scan(const CPairing::Item& item, int x, int y, int& best, double& bestCost) const
    {
        for (const int index :
             m_buckets[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_columns) +
                       static_cast<std::size_t>(x)]) {
            const double cost = CPairing::Cost(item, m_items[static_cast<std::size_t>(index)]);
            if (cost < bestCost || (cost == bestCost && index < best)) {
                bestCost = cost;
                best = index;
            }
        }
    }

    const std::vector<CPairing::Item>& m_items;
    double m_minX = 0;
    double m_minY = 0;
    double m_cell = 1;
    int m_columns = 1;
    int m_rows = 1;
    std::vector<std::vector<int>> m_buckets;
    std::vector<std::size_t> m_slot;
    std::size_t m_free = 0;
};

} // namespace

double CPairing::Cost(const Item& a, const Item& b)
{
    // Coordinates are 32-bit whole numbers: their squares cannot overflow a
    // double, so the plain root does (std::hypot is far slower).
    const double dx = a.X - b.X, dy = a.Y - b.Y;
    const double hx = a.HeadX - b.HeadX, hy = a.HeadY - b.HeadY;
    return std::sqrt(dx * dx + dy * dy) + std::sqrt(hx * hx + hy * hy) +
           (a.Look == b.Look ? 0 : LookPenalty);
}

std::vector<int> CPairing::Pair(const std::vector<Item>& older, const std::vector<Item>& newer,
                                int exactLimit)
{
    const double shorter = static_cast<double>(std::min(older.size(), newer.size()));
    const double longer = static_cast<double>(std::max(older.size(), newer.size()));
    const double limit = static_cast<double>(exactLimit);
    if (shorter * shorter * longer <= limit * limit * limit)
        return Exact(older, newer);
    return NearestFirst(older, newer);
}

std::vector<int> CPairing::Exact(const std::vector<Item>& older, const std::vector<Item>& newer)
{
    std::vector<int> partner(older.size(), -1);
    if (older.empty() || newer.empty())
        return partner;
    // The method wants no more rows than columns: rows are the shorter list.
    const bool olderRows = older.size() <= newer.size();
    const std::vector<Item>& rows = olderRows ? older : newer;
    const std::vector<Item>& columns = olderRows ? newer : older;
    const std::size_t n = rows.size();
    const std::size_t m = columns.size();

    // Potentials u (rows) and v (columns); match[j] is the row of column j,
    // all 1-based with 0 as the free slot.
    std::vector<double> u(n + 1, 0), v(m + 1, 0);
    std::vector<std::size_t> match(m + 1, 0), way(m + 1, 0);
    std::vector<double> minimum(m + 1);
    std::vector<char> used(m + 1);
    // The inner loop reads each cost n times: keep them, unless that would
    // take much memory (a few items against very many).
    constexpr std::size_t keptCosts = 4 * 1024 * 1024;
    std::vector<double> costs;
    if (n * m <= keptCosts) {
        costs.resize(n * m);
        for (std::size_t i = 0; i < n; ++i) {
            for (std::size_t j = 0; j < m; ++j)
                costs[i * m + j] = Cost(rows[i], columns[j]);
        }
    }
    const auto cost = [&](std::size_t i, std::size_t j) {
        return costs.empty() ? Cost(rows[i], columns[j]) : costs[i * m + j];
    };
    // Starting each row's potential at its cheapest cost keeps the
    // potentials feasible and lets most rows of a turn of short moves find
    // their partner in the first step.
    for (std::size_t i = 1; i <= n; ++i) {
        double cheapest = infinity;
        for (std::size_t j = 1; j <= m; ++j)
            cheapest = std::min(cheapest, cost(i - 1, j - 1));
        u[i] = cheapest;
    }
    for (std::size_t i = 1; i <= n; ++i) {
        match[0] = i;
        std::size_t j0 = 0;
        std::fill(minimum.begin(), minimum.end(), infinity);
        std::fill(used.begin(), used.end(), 0);
        do {
            used[j0] = 1;
            const std::size_t i0 = match[j0];
            double delta = infinity;
            std::size_t j1 = 0;
            for (std::size_t j = 1; j <= m; ++j) {
                if (used[j])
                    continue;
                const double current = cost(i0 - 1, j - 1) - u[i0] - v[j];
                if (current < minimum[j]) {
                    minimum[j] = current;
                    way[j] = j0;
                }
                if (minimum[j] < delta) {
                    delta = minimum[j];
                    j1 = j;
                }
            }
            for (std::size_t j = 0; j <= m; ++j) {
                if (used[j]) {
                    u[match[j]] += delta;
                    v[j] -= delta;
                } else {
                    minimum[j] -= delta;
                }
            }
            j0 = j1;
        } while (match[j0] != 0);
        do {
            const std::size_t j1 = way[j0];
            match[j0] = match[j1];
            j0 = j1;
        } while (j0 != 0);
    }
    for (std::size_t j = 1; j <= m; ++j) {
        if (match[j] == 0)
            continue;
        const int row = static_cast<int>(match[j] - 1);
        const int column = static_cast<int>(j - 1);
        if (olderRows)
            partner[static_cast<std::size_t>(row)] = column;
        else
            partner[static_cast<std::size_t>(column)] = row;
    }
    return partner;
}

std::vector<int> CPairing::NearestFirst(const std::vector<Item>& older,
                                        const std::vector<Item>& newer)
{
    std::vector<int> partner(older.size(), -1);
    if (older.empty() || newer.empty())
        return partner;
    Grid grid(newer);
    // Candidates (cost, older, newer), closest first. A candidate whose newer
    // item was taken meanwhile is looked up again: the older item's nearest
    // free partner can only be farther, so the order stays right.
    using Candidate = std::tuple<double, int, int>;
    std::priority_queue<Candidate, std::vector<Candidate>, std::greater<>> queue;
    for (std::size_t i = 0; i < older.size(); ++i) {
        const auto [index, cost] = grid.Nearest(older[i]);
        queue.emplace(cost, static_cast<int>(i), index);
    }
    std::vector<char> taken(newer.size(), 0);
    while (!queue.empty() && grid.Free() > 0) {
        const auto [cost, olderIndex, newerIndex] = queue.top();
        queue.pop();
        if (taken[static_cast<std::size_t>(newerIndex)]) {
            const auto [index, again] = grid.Nearest(older[static_cast<std::size_t>(olderIndex)]);
            if (index >= 0)
                queue.emplace(again, olderIndex, index);
            continue;
        }
        taken[static_cast<std::size_t>(newerIndex)] = 1;
        partner[static_cast<std::size_t>(olderIndex)] = newerIndex;
        grid.Take(newerIndex);
    }
    return partner;
}
