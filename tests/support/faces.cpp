#include "support/faces.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ostream>
#include <sstream>
#include <tuple>

namespace marlogl {

namespace {

Point3 cross(const Point3 &a, const Point3 &b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

std::vector<Point3> from_least(std::vector<Point3> corners)
{
    if (!corners.empty())
        std::rotate(corners.begin(), std::min_element(corners.begin(), corners.end()), corners.end());
    return corners;
}

std::vector<std::pair<int, double>> pairs_in(const std::string &text)
{
    std::vector<std::pair<int, double>> pairs;
    std::istringstream list(text);
    int first = 0;
    double second = 0;
    for (char comma = 0; list >> first >> second; list >> comma)
        pairs.emplace_back(first, second);
    return pairs;
}

} // namespace

int DrawnFace::slot() const
{
    return texture.size() == 3 && texture[0] == 't' ? std::stoi(texture.substr(1)) : -1;
}

std::vector<int> DrawnFace::position_slots() const
{
    std::vector<int> slots;
    for (const Corner3 &corner : corners) {
        const int slot = static_cast<int>(std::lround(corner.u));
        const auto has_row = [&](int row) { return std::abs(corner.v - row) < 0.01; };
        slots.push_back(has_row(250 - slot) ? slot : has_row(255 - (250 - slot)) ? flipped + slot : -1);
    }
    return slots;
}

Faces faces(const Converted &converted)
{
    Faces found;
    std::string texture;
    bool open = false;
    double u = 0, v = 0;
    for (const std::string &line : converted.lines()) {
        Point3 p{};
        if (line.starts_with("BindTexture( \"")) {
            texture = line.substr(14, line.rfind(".bmp") - 14);
        } else if (line == "glBegin( GL_POLYGON );") {
            found.emplace_back().texture = texture;
            open = true;
        } else if (line == "glEnd();") {
            open = false;
        } else if (!open) {
            continue;
        } else if (line.starts_with("glColor3ub(")) {
            found.back().side = line == "glColor3ub( 050, 100, 200 ); "  ? 'I'
                                : line == "glColor3ub(200, 100, 050 ); " ? 'O'
                                                                         : '?';
        } else if (std::sscanf(line.c_str(), " glTexCoord2f( %lf%*[f], %lf", &u, &v) == 2) {
            continue;
        } else if (std::sscanf(line.c_str(), " glNormal3d( %lf, %lf, %lf", &p.x, &p.y, &p.z) == 3) {
            found.back().normal.push_back(p);
        } else if (std::sscanf(line.c_str(), " glVertex3d( %lf, %lf, %lf", &p.x, &p.y, &p.z) == 3) {
            found.back().corners.push_back({p, u * 255, 255 - v * 255});
        }
    }
    return found;
}

Design textured_design(int version, int type, const Cells &cells, const Prism &prism)
{
    Design design(version);
    const bool is_prism = version == 1 ? type == 3 || type == 4 : type == 5 || type == 18;
    const int offset = is_prism ? 5000 : 0;
    design.line("V1.2").object(type, "Solid");
    char name[16];
    for (int slot = 0; slot <= 28; ++slot) {
        std::snprintf(name, sizeof name, "t%02d", slot);
        design.textured(slot, slot, name);
    }
    for (int slot = 0; slot <= 180; ++slot)
        design.point(slot, slot + offset, 250 - slot + offset);
    std::istringstream triangles(prism.triangles);
    int corner = 0;
    for (const auto &[x, y] : pairs_in(prism.bottom)) {
        std::string attribute;
        triangles >> attribute;
        design.point(++corner, x + offset, static_cast<int>(y) + offset, "", attribute);
    }
    corner = type == 4 || type == 18 ? 20 : 10;
    for (const auto &[x, y] : pairs_in(prism.top))
        design.point(++corner, x + offset, static_cast<int>(y) + offset);
    for (const auto &cell : pairs_in(cells))
        design.params({cell});
    return design;
}

Faces textured_faces(int version, int type, const Cells &cells, const Prism &prism)
{
    return faces(convert(textured_design(version, type, cells, prism)));
}

void expect_moved(const Faces &before, const Faces &after, const std::function<Point3(const Point3 &)> &move)
{
    ASSERT_EQ(before.size(), after.size());
    ASSERT_FALSE(before.empty());
    for (std::size_t f = 0; f < before.size(); ++f) {
        ASSERT_EQ(before[f].corners.size(), after[f].corners.size());
        for (std::size_t c = 0; c < before[f].corners.size(); ++c) {
            const Point3 &from = before[f].corners[c].at;
            ASSERT_EQ(after[f].corners[c].at - from, move(from)) << "face " << f << " corner " << from;
        }
    }
}

Point3 operator-(const Point3 &a, const Point3 &b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

bool operator<(const Point3 &a, const Point3 &b)
{
    return std::tie(a.x, a.y, a.z) < std::tie(b.x, b.y, b.z);
}

std::ostream &operator<<(std::ostream &out, const Point3 &p)
{
    return out << '(' << p.x << ", " << p.y << ", " << p.z << ')';
}

Point3 area_vector(const DrawnFace &face)
{
    Point3 sum{};
    for (std::size_t i = 2; i < face.corners.size(); ++i) {
        const Point3 &a = face.corners[0].at;
        sum = sum - cross(face.corners[i].at - a, face.corners[i - 1].at - a);
    }
    return sum;
}

double volume(const Faces &faces, double base)
{
    double sixfold = 0;
    for (const DrawnFace &face : faces) {
        if (face.corners.empty())
            continue;
        const Point3 area = area_vector(face), &a = face.corners[0].at;
        sixfold += area.x * a.x + area.y * a.y + area.z * (a.z - base);
    }
    return sixfold / 6;
}

std::vector<std::pair<Point3, Point3>> open_edges(const Faces &faces)
{
    std::map<std::pair<Point3, Point3>, int> walked;
    for (const DrawnFace &face : faces)
        for (std::size_t i = 0; i < face.corners.size(); ++i)
            ++walked[{face.corners[i].at, face.corners[(i + 1) % face.corners.size()].at}];
    std::vector<std::pair<Point3, Point3>> open;
    for (const auto &[edge, times] : walked)
        if (times != 1 || !walked.contains({edge.second, edge.first}))
            open.push_back(edge);
    return open;
}

std::pair<Point3, Point3> extents(const Faces &faces)
{
    Point3 low{HUGE_VAL, HUGE_VAL, HUGE_VAL}, high{-HUGE_VAL, -HUGE_VAL, -HUGE_VAL};
    for (const DrawnFace &face : faces)
        for (const Corner3 &corner : face.corners) {
            const Point3 &p = corner.at;
            low = {std::min(low.x, p.x), std::min(low.y, p.y), std::min(low.z, p.z)};
            high = {std::max(high.x, p.x), std::max(high.y, p.y), std::max(high.z, p.z)};
        }
    return {low, high};
}

std::vector<Point3> in_order(const DrawnFace &face)
{
    std::vector<Point3> corners;
    for (const Corner3 &corner : face.corners)
        corners.push_back(corner.at);
    return from_least(corners);
}

std::vector<Point3> opposite(const DrawnFace &face)
{
    std::vector<Point3> corners = in_order(face);
    std::reverse(corners.begin(), corners.end());
    return from_least(corners);
}

std::string signs(const Point3 &v)
{
    std::string text;
    for (const double x : {v.x, v.y, v.z})
        text += x > 1e-6 ? '+' : x < -1e-6 ? '-' : '0';
    return text;
}

std::string box_text(const Faces &all)
{
    const auto [low, high] = extents(all);
    std::ostringstream text;
    text << low.x << ".." << high.x << ' ' << low.y << ".." << high.y << ' ' << low.z << ".." << high.z;
    return text.str();
}

std::string description(const DrawnFace &face)
{
    Point3 middle{};
    for (const Corner3 &corner : face.corners) {
        const double n = static_cast<double>(face.corners.size());
        middle = middle - Point3{-corner.at.x / n, -corner.at.y / n, -corner.at.z / n};
    }
    std::string text =
        signs(area_vector(face)) + ' ' + signs(face.corners[0].at - middle) + ' ' + face.texture;
    for (const int slot : face.position_slots())
        text += ' ' + std::to_string(slot);
    return text;
}

} // namespace marlogl
