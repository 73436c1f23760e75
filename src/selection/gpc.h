// SPDX-License-Identifier: GPL-3.0-or-later
/// Polygons with holes and the four set operations on them, under the names that polygon code knows them by.
#pragma once

/// What gpc_polygon_clip makes of a subject and a clip polygon.
enum gpc_op { GPC_DIFF = 0, GPC_INT = 1, GPC_XOR = 2, GPC_UNION = 3 };

/// A corner, in whatever unit the caller uses; the operations work on a grid of 1/65536 of it.
struct gpc_vertex {
    double x, y;
};

/// One contour: closed by an edge from its last vertex to its first; a last vertex that repeats the first is harmless.
struct gpc_vertex_list {
    int num_vertices;
    gpc_vertex* vertex; ///< num_vertices of them, from malloc
};

/// Contours that together enclose a region by the even-odd rule, so that a contour inside another is a hole in it.
struct gpc_polygon {
    int num_contours = 0;
    int* hole = nullptr;                ///< num_contours flags from malloc, or null; results carry them, input need not
    gpc_vertex_list* contour = nullptr; ///< num_contours of them, from malloc
};

/// @p result becomes subject minus clip, their common part, their exclusive or, or their union; it is overwritten, not
/// freed. Both inputs are taken by the even-odd rule and left alone; either may be the same object as the other,
/// neither as the result. Contours of the result never cross, though they may touch in single points; outer ones and
/// holes turn opposite ways. Corners keep their place, and crossings are found, to within 1/65536. Vertices that are
/// not finite are left out, and coordinates beyond a thousand million are cut to that. Out of memory, a line on
/// standard error says where and the process ends. Any thread. Time: O(n) for n edges and crossings of drawn outlines
/// (see PlanarClip.h); outlines along whole pixels take a faster way still (see RectilinearClip.h).
void gpc_polygon_clip(gpc_op operation, const gpc_polygon* subject, const gpc_polygon* clip, gpc_polygon* result);

/// Frees what the polygon holds, not the record itself, which is empty afterwards.
void gpc_free_polygon(gpc_polygon* polygon);
