#include "chart/geometry/painters_order.h"

#include "chart/geometry/face_tree.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <optional>

namespace zkp::chart {

namespace {

constexpr double Point3::*kAxes[] = {&Point3::x, &Point3::y, &Point3::z};

/// A solid with what parting asks of it.
struct Body {
    Solid solid;
    Point3 least;
    Point3 most;

    explicit Body(Solid given)
        : solid(std::move(given)) {
        constexpr double kFar = std::numeric_limits<double>::infinity();
        least = {kFar, kFar, kFar};
        most = {-kFar, -kFar, -kFar};
        for (const Face& face : solid.faces)
            for (const Point3& p : face.corners)
                for (const auto axis : kAxes) {
                    least.*axis = std::min(least.*axis, p.*axis);
                    most.*axis = std::max(most.*axis, p.*axis);
                }
    }

    double size() const { return dot(most - least, {1, 1, 1}); }
};

/// Bodies that touch count as parted.
double slackOf(const Body& body) {
    return 1e-9 * (1 + body.size());
}

/// -1 behind the plane, 1 on the normal's side, 0 when it goes through.
int sideOf(const Body& body, const Plane& plane) {
    const double slack = slackOf(body);
    bool before = false;
    bool behind = false;
    for (const Face& face : body.solid.faces)
        for (const Point3& p : face.corners) {
            const double distance = plane.distance(p);
            before = before || distance > slack;
            behind = behind || distance < -slack;
        }
    return before && behind ? 0 : before ? 1 : -1;
}

class Order {
public:
    Order(const Projection& projection, std::span<const Plane> partings)
        : projection_(projection)
        , partings_(partings) {}

    void add(std::span<Body> bodies) {
        if (bodies.size() == 1)
            return addConvex(bodies.front());
        if (bodies.empty())
            return;
        if (const auto parted = partByAxis(bodies))
            return addParts(bodies, *parted);
        for (const Plane& plane : partings_)
            if (const auto parted = partBy(bodies, plane))
                return addParts(bodies, *parted);
        addCut(bodies);
    }

    std::vector<PaintedFace> take() { return std::move(faces_); }

private:
    /// How many of the bodies, which are in that order by now, stand behind the plane.
    struct Parted {
        std::size_t behind;
        Plane plane;
    };

    void addParts(std::span<Body> bodies, const Parted& parted) {
        const std::span<Body> behind = bodies.first(parted.behind);
        const std::span<Body> before = bodies.subspan(parted.behind);
        const bool looksFromBefore = projection_.eyeSide(parted.plane) > 0;
        add(looksFromBefore ? behind : before);
        add(looksFromBefore ? before : behind);
    }

    /// The most even of the gaps across the three axes.
    std::optional<Parted> partByAxis(std::span<Body> bodies) {
        std::optional<Parted> best;
        const double Point3::*bestAxis = nullptr;
        for (const auto axis : kAxes) {
            sortAlong(bodies, axis);
            double reached = bodies.front().most.*axis;
            for (std::size_t i = 1; i < bodies.size(); ++i) {
                if (bodies[i].least.*axis >= reached - slackOf(bodies[i]) &&
                    isMoreEven(i, best, bodies.size())) {
                    Plane plane;
                    plane.normal.*axis = 1;
                    plane.offset = (reached + bodies[i].least.*axis) / 2;
                    best = Parted{i, plane};
                    bestAxis = axis;
                }
                reached = std::max(reached, bodies[i].most.*axis);
            }
        }
        if (best)
            sortAlong(bodies, bestAxis);
        return best;
    }

    static bool isMoreEven(std::size_t place, const std::optional<Parted>& best, std::size_t count) {
        const auto unevenness = [&](std::size_t at) {
            return std::abs(static_cast<std::int64_t>(count) - 2 * static_cast<std::int64_t>(at));
        };
        return !best || unevenness(place) < unevenness(best->behind);
    }

    static void sortAlong(std::span<Body> bodies, const double Point3::*axis) {
        std::stable_sort(bodies.begin(), bodies.end(),
                         [&](const Body& a, const Body& b) { return a.least.*axis < b.least.*axis; });
    }

    static std::optional<Parted> partBy(std::span<Body> bodies, const Plane& plane) {
        for (const Body& body : bodies)
            if (sideOf(body, plane) == 0)
                return {};
        const auto middle = std::stable_partition(bodies.begin(), bodies.end(),
                                                  [&](const Body& body) { return sideOf(body, plane) < 0; });
        if (middle == bodies.begin() || middle == bodies.end())
            return {};
        return Parted{static_cast<std::size_t>(middle - bodies.begin()), plane};
    }

    /// The faces of one convex body that are seen never cover each other.
    void addConvex(Body& body) {
        for (Face& face : body.solid.faces)
            if (isSeen(face))
                faces_.push_back({std::move(face), body.solid.id});
    }

    void addCut(std::span<Body> bodies) {
        std::vector<PaintedFace> seen;
        for (Body& body : bodies)
            for (Face& face : body.solid.faces)
                if (isSeen(face))
                    seen.push_back({std::move(face), body.solid.id});
        for (PaintedFace& piece : cutInOrder(std::move(seen), projection_))
            faces_.push_back(std::move(piece));
    }

    bool isSeen(const Face& face) const {
        const double side = projection_.eyeSide(planeOf(face));
        return face.isSheet ? side != 0 : side > 0;
    }

    const Projection& projection_;
    std::span<const Plane> partings_;
    std::vector<PaintedFace> faces_;
};

} // namespace

std::vector<PaintedFace> paintersOrder(std::vector<Solid> solids, const Projection& projection,
                                       std::span<const Plane> partings) {
    std::vector<Body> bodies;
    bodies.reserve(solids.size());
    for (Solid& solid : solids)
        bodies.emplace_back(std::move(solid));
    Order order(projection, partings);
    order.add(bodies);
    return order.take();
}

} // namespace zkp::chart
