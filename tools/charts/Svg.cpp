#include "Svg.h"

#include "Shown.h"
#include "Table.h"

#include <cmath>
#include <cstdint>
#include <utility>

namespace FluidBenchTool {

namespace {

constexpr std::string_view fonts = "Helvetica, Arial, 'Liberation Sans', 'DejaVu Sans', sans-serif";
constexpr std::string_view replacement = "\uFFFD";

std::string Number(double value) {
    constexpr double tenths = 10.0;
    return NumberText(std::round(value * tenths) / tenths + 0.0, 10);
}

std::string Attribute(std::string_view name, std::string_view value) {
    return ' ' + std::string(name) + "=\"" + std::string(value) + '"';
}

std::string Attribute(std::string_view name, double value) {
    return Attribute(name, Number(value));
}

std::string Attributes(const Stroke& stroke) {
    std::string text = Attribute("fill", "none") + Attribute("stroke", stroke.colour) +
                       Attribute("stroke-width", stroke.width);
    if (!stroke.dashes.empty()) {
        text += Attribute("stroke-dasharray", stroke.dashes);
    }
    return text;
}

// Length of the UTF-8 character that the text begins with; 0 where it begins with none, or with one
// that XML doesn't allow.
std::size_t CharacterLength(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text.front());
    if (lead < 0x80) {
        return lead >= 0x20 || lead == '\t' ? 1 : 0;
    }
    const std::size_t length = lead >= 0xF5   ? 0
                               : lead >= 0xF0 ? 4
                               : lead >= 0xE0 ? 3
                               : lead >= 0xC2 ? 2
                                              : 0;
    if (length == 0 || length > text.size()) {
        return 0;
    }
    std::uint32_t code = lead & (0x7FU >> length);
    for (const char c : text.substr(1, length - 1)) {
        if ((static_cast<unsigned char>(c) & 0xC0U) != 0x80U) {
            return 0;
        }
        code = (code << 6U) | (static_cast<unsigned char>(c) & 0x3FU);
    }
    const bool isOverlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
    const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
    const bool isForbidden = code == 0xFFFE || code == 0xFFFF || code > 0x10FFFF;
    return isOverlong || isSurrogate || isForbidden ? 0 : length;
}

std::string Escaped(std::string_view outside) {
    std::string escaped;
    const std::string shown = Shown(outside);
    std::string_view text = shown;
    while (!text.empty()) {
        const std::size_t length = CharacterLength(text);
        switch (text.front()) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        default:
            escaped += length == 0 ? replacement : text.substr(0, length);
        }
        text.remove_prefix(length == 0 ? 1 : length);
    }
    return escaped;
}

std::string_view Name(TextStyle::Anchor anchor) {
    return anchor == TextStyle::Anchor::Middle ? "middle"
           : anchor == TextStyle::Anchor::End  ? "end"
                                               : "start";
}

} // namespace

SvgPicture::SvgPicture(double width, double height, std::string_view title, double zoom) {
    svg_ = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\"" +
           Attribute("width", width * zoom) + Attribute("height", height * zoom) +
           Attribute("viewBox", "0 0 " + Number(width) + ' ' + Number(height)) +
           Attribute("role", "img") + Attribute("font-family", fonts) + ">\n<title>" +
           Escaped(title) + "</title>\n<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n";
}

void SvgPicture::AddRectangle(Place corner, double width, double height, const Stroke& stroke) {
    svg_ += "<rect" + Attribute("x", corner.x) + Attribute("y", corner.y) +
            Attribute("width", width) + Attribute("height", height) + Attributes(stroke) + "/>\n";
}

void SvgPicture::AddLine(Place from, Place to, const Stroke& stroke) {
    svg_ += "<line" + Attribute("x1", from.x) + Attribute("y1", from.y) + Attribute("x2", to.x) +
            Attribute("y2", to.y) + Attributes(stroke) + "/>\n";
}

void SvgPicture::AddPolyline(const std::vector<Place>& places, const Stroke& stroke) {
    if (places.size() < 2) {
        return;
    }
    svg_ += "<polyline" + Attributes(stroke) + Attribute("stroke-linejoin", "round") + " points=\"";
    std::string separator;
    for (const Place& place : places) {
        svg_ += std::exchange(separator, " ") + Number(place.x) + ',' + Number(place.y);
    }
    svg_ += "\"/>\n";
}

void SvgPicture::AddDisc(Place centre, double radius, std::string_view colour, const Stroke& rim) {
    svg_ += "<circle" + Attribute("cx", centre.x) + Attribute("cy", centre.y) +
            Attribute("r", radius) + Attribute("fill", colour) + Attribute("stroke", rim.colour) +
            Attribute("stroke-width", rim.width) + "/>\n";
}

void SvgPicture::AddText(Place place, std::string_view text, const TextStyle& style) {
    svg_ += "<text" + Attribute("x", place.x) + Attribute("y", place.y) +
            Attribute("font-size", style.size) + Attribute("fill", style.colour) +
            Attribute("text-anchor", Name(style.anchor));
    if (style.isBold) {
        svg_ += Attribute("font-weight", "bold");
    }
    if (style.hasHalo) {
        svg_ += Attribute("stroke", "#ffffff") + Attribute("stroke-width", 3.0) +
                Attribute("stroke-linejoin", "round") + Attribute("paint-order", "stroke");
    }
    if (style.isUpward) {
        svg_ +=
            Attribute("transform", "rotate(-90 " + Number(place.x) + ' ' + Number(place.y) + ')');
    }
    svg_ += '>' + Escaped(text) + "</text>\n";
}

void SvgPicture::BeginClip(Place corner, double width, double height) {
    const std::string name = "clip" + std::to_string(++clips_);
    svg_ += "<clipPath" + Attribute("id", name) + "><rect" + Attribute("x", corner.x) +
            Attribute("y", corner.y) + Attribute("width", width) + Attribute("height", height) +
            "/></clipPath>\n<g" + Attribute("clip-path", "url(#" + name + ')') + ">\n";
}

void SvgPicture::EndClip() {
    svg_ += "</g>\n";
}

std::string SvgPicture::Finish() {
    svg_ += "</svg>\n";
    return std::move(svg_);
}

} // namespace FluidBenchTool
