// Writes pictures as SVG, the vector format of browsers and word processors.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace FluidBenchTool {

/// A place in a picture, in pixels to the right of and below its upper left corner.
struct Place {
    double x = 0.0;
    double y = 0.0;
};

/// How a line is drawn.
struct Stroke {
    std::string colour;
    double width = 1.0;
    /// Lengths of dashes and gaps in turn, as "8 4"; empty for a whole line.
    std::string dashes = {};
};

/// How a text is set.
struct TextStyle {
    enum class Anchor { Start, Middle, End };

    double size = 13.0;
    Anchor anchor = Anchor::Start;
    bool isBold = false;
    bool isUpward = false; ///< turned by a quarter, to be read from below
    bool hasHalo = false;  ///< stands out from lines that it is written on
    std::string colour = "#222222";
};

/// A picture on white ground that grows by one element after another, each above those before it.
/// Places are rounded to a tenth of a pixel. Any text may be given: what a reader would obey
/// instead of showing it comes out escaped, and what XML can't hold is replaced.
class SvgPicture {
public:
    /// The title is what a screen reader says. What is drawn in `width` and `height` is shown as
    /// many times larger or smaller as `zoom` says.
    SvgPicture(double width, double height, std::string_view title, double zoom = 1.0);

    void AddRectangle(Place corner, double width, double height, const Stroke& stroke);
    void AddLine(Place from, Place to, const Stroke& stroke);
    /// Draws nothing for fewer than two places.
    void AddPolyline(const std::vector<Place>& places, const Stroke& stroke);
    void AddDisc(Place centre, double radius, std::string_view colour, const Stroke& rim);
    /// `place` is on the base line of the text, where its anchor says.
    void AddText(Place place, std::string_view text, const TextStyle& style);

    /// What is added from here to `EndClip` is seen within the rectangle alone.
    void BeginClip(Place corner, double width, double height);
    void EndClip();

    /// The whole file. Nothing can be added afterwards.
    std::string Finish();

private:
    std::string svg_;
    int clips_ = 0;
};

} // namespace FluidBenchTool
