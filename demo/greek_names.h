#pragma once

#include <span>
#include <string>
#include <string_view>

namespace zkp::demo {

/// A surname as men and as women bear it.
struct Surname {
    std::string_view male;
    std::string_view female;
};

/// A town and the region it belongs to.
struct Town {
    std::string_view name;
    std::string_view region;
};

std::span<const Surname> surnames();
std::span<const std::string_view> maleNames();
std::span<const std::string_view> femaleNames();
std::span<const Town> towns();

/// Surname and first name of the person with that number. Numbers that differ by less than
/// surnames × first names give different people.
std::string personName(int number);

} // namespace zkp::demo
