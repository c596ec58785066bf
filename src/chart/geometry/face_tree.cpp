#include "chart/geometry/face_tree.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace zkp::chart {

namespace {

/// Corners nearer to a plane than this part of the face's size lie on it.
constexpr double kThickness = 1e-7;

double sizeOf(const Face& face) {
    double size = 0;
    for (const Point3& p : face.corners) {
        const Point3 way = p - face.corners.front();
        size = std::max(size, dot(way, way));
    }
    return std::sqrt(size);
}

struct Cut {
    std::vector<Point3> before;
    std::vector<Point3> behind;
};

/// Walks round the face and gives each side of the plane its corners; corners on the plane go to both.
Cut cut(const Face& face, const Plane& plane, double slack) {
    Cut parts;
    const std::size_t count = face.corners.size();
    for (std::size_t i = 0; i < count; ++i) {
        const Point3& p = face.corners[i];
        const Point3& next = face.corners[(i + 1) % count];
        const double here = plane.distance(p);
        const double there = plane.distance(next);
        if (here >= -slack)
            parts.before.push_back(p);
        if (here <= slack)
            parts.behind.push_back(p);
        if ((here > slack && there < -slack) || (here < -slack && there > slack)) {
            const Point3 crossing = p + (next - p) * (here / (here - there));
            parts.before.push_back(crossing);
            parts.behind.push_back(crossing);
        }
    }
    return parts;
}

/// On which sides of a plane a face has corners.
struct Sides {
    bool before = false;
    bool behind = false;
    bool isCut() const { return before && behind; }
};

Sides sidesOf(const Face& face, const Plane& plane, double slack) {
    Sides sides;
    for (const Point3& p : face.corners) {
        const double distance = plane.distance(p);
        sides.before = sides.before || distance > slack;
        sides.behind = sides.behind || distance < -slack;
    }
    return sides;
}

class Cutter {
public:
    explicit Cutter(const Projection& projection)
        : projection_(projection) {}

    void add(std::vector<PaintedFace> faces) {
        if (faces.empty())
            return;
        const std::size_t chosen = choose(faces);
        const Plane plane = planeOf(faces[chosen].face);
        std::vector<PaintedFace> before, within, behind;
        for (std::size_t i = 0; i < faces.size(); ++i) {
            if (i == chosen)
                within.push_back(std::move(faces[i]));
            else
                deal(std::move(faces[i]), plane, before, within, behind);
        }
        const bool looksFromBefore = projection_.eyeSide(plane) > 0;
        add(std::move(looksFromBefore ? behind : before));
        for (PaintedFace& face : within)
            ordered_.push_back(std::move(face));
        add(std::move(looksFromBefore ? before : behind));
    }

    std::vector<PaintedFace> take() { return std::move(ordered_); }

private:
    /// Of a few faces the one whose plane cuts the fewest.
    static std::size_t choose(const std::vector<PaintedFace>& faces) {
        constexpr std::size_t kTries = 8;
        const std::size_t step = std::max<std::size_t>(1, faces.size() / kTries);
        std::size_t best = 0;
        std::size_t fewest = std::numeric_limits<std::size_t>::max();
        for (std::size_t i = 0; i < faces.size(); i += step) {
            const Plane plane = planeOf(faces[i].face);
            const double slack = kThickness * sizeOf(faces[i].face);
            const auto cuts = static_cast<std::size_t>(
                std::count_if(faces.begin(), faces.end(), [&](const PaintedFace& other) {
                    return sidesOf(other.face, plane, slack).isCut();
                }));
            if (cuts < fewest) {
                fewest = cuts;
                best = i;
            }
        }
        return best;
    }

    static void deal(PaintedFace piece, const Plane& plane, std::vector<PaintedFace>& before,
                     std::vector<PaintedFace>& within, std::vector<PaintedFace>& behind) {
        const double slack = kThickness * (sizeOf(piece.face) + 1);
        const Sides sides = sidesOf(piece.face, plane, slack);
        if (!sides.before && !sides.behind) {
            within.push_back(std::move(piece));
        } else if (!sides.isCut()) {
            (sides.before ? before : behind).push_back(std::move(piece));
        } else {
            Cut parts = cut(piece.face, plane, slack);
            before.push_back({{std::move(parts.before), piece.face.isSheet}, piece.id});
            behind.push_back({{std::move(parts.behind), piece.face.isSheet}, piece.id});
        }
    }

    const Projection& projection_;
    std::vector<PaintedFace> ordered_;
};

} // namespace

std::vector<PaintedFace> cutInOrder(std::vector<PaintedFace> faces, const Projection& projection) {
    Cutter cutter(projection);
    cutter.add(std::move(faces));
    return cutter.take();
}

} // namespace zkp::chart
