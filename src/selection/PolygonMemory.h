// SPDX-License-Identifier: GPL-3.0-or-later
/// Memory of polygon records: from malloc, so that gpc_free_polygon can free whatever anybody built.
#pragma once
#include "selection/gpc.h"
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace zp
{

/// @p count records from malloc, never null for a count above 0. The selection's polygon code cannot go on without its
/// memory: a line names the @p step and the process ends.
template <class T>
T* allocatePolygonMemory(std::size_t count, const char* step)
{
    if (count == 0) return nullptr;
    T* memory = static_cast<T*>(std::calloc(count, sizeof(T)));
    if (!memory) {
        std::fprintf(stderr, "gpc malloc failure: %s\n", step);
        std::exit(EXIT_FAILURE);
    }
    return memory;
}

/// Appends contours to a polygon record one by one, growing its arrays by doubling.
class PolygonWriter
{
public:
    explicit PolygonWriter(gpc_polygon& result) : mResult(result) { mResult = gpc_polygon{}; }

    /// Room for a contour of @p count vertices, to be filled in by the caller.
    gpc_vertex* addContour(int count, bool hole)
    {
        const int n = mResult.num_contours;
        if (n == mCapacity) grow();
        gpc_vertex* vertices = allocatePolygonMemory<gpc_vertex>(std::size_t(count), "result vertex creation");
        mResult.contour[n] = {count, vertices};
        mResult.hole[n] = hole ? 1 : 0;
        mResult.num_contours = n + 1;
        return vertices;
    }

private:
    void grow()
    {
        mCapacity = mCapacity ? mCapacity * 2 : 4;
        mResult.contour = resized(mResult.contour, "result contour creation");
        mResult.hole = resized(mResult.hole, "result hole flag creation");
    }
    template <class T>
    T* resized(T* old, const char* step)
    {
        T* memory = static_cast<T*>(std::realloc(static_cast<void*>(old), std::size_t(mCapacity) * sizeof(T)));
        if (!memory) {
            std::fprintf(stderr, "gpc malloc failure: %s\n", step);
            std::exit(EXIT_FAILURE);
        }
        return memory;
    }
    gpc_polygon& mResult;
    int mCapacity = 0;
};

struct FreePolygon {
    void operator()(gpc_polygon* polygon) const
    {
        gpc_free_polygon(polygon);
        delete polygon;
    }
};
/// A polygon on the heap with what it holds.
using PolygonPtr = std::unique_ptr<gpc_polygon, FreePolygon>;

} // namespace zp
