#pragma once

#include <cstdint>
#include <vector>

// Pairs the items of an older and a newer list so that the distance
// travelled in all is smallest. An item is a point (a unit's position), or
// two (an arrow's tail and head, the distance then being the sum of both);
// Look stands for the rest of the item (caption and data), and a pair whose
// looks differ costs a hair more, so that among equal distances like pairs
// with like.
class CPairing
{
public:
    struct Item
    {
        double X = 0;
        double Y = 0;
        double HeadX = 0;
        double HeadY = 0;
        std::uint64_t Look = 0;
    };

    // The extra cost of pairing items of different looks.
    static constexpr double LookPenalty = 1e-3;

    static double Cost(const Item& a, const Item& b);

    // For each older item the index of its newer partner, or -1. As many
    // pairs as the shorter list has items. Exact (Hungarian method) while
    // shorter^2 * longer stays within exactLimit^3, else NearestFirst.
    static std::vector<int> Pair(const std::vector<Item>& older, const std::vector<Item>& newer,
                                 int exactLimit);
    // The assignment of least total cost, in O(shorter^2 * longer) time.
    static std::vector<int> Exact(const std::vector<Item>& older, const std::vector<Item>& newer);
    // Greedy: pairs the closest free pair of all, then the next closest, and
    // so on, finding neighbours through a grid over the newer items. Not
    // always the least total (a chain of moves may pair one step off), but
    // for turns of short moves the same, and fast for thousands of items.
    static std::vector<int> NearestFirst(const std::vector<Item>& older,
                                         const std::vector<Item>& newer);
};
