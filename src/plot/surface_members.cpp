#include "plot/surface_members.h"

namespace kelvo {

void assign(SurfaceMembers& members, SurfaceMember member, const SurfaceValue& value) {
    const auto take = [&value]<class Field>(Field& field) { field = std::get<Field>(value); };
    switch (member) {
        case SurfaceMember::ForeColor:
            return take(members.ForeColor);
        case SurfaceMember::BackColor:
            return take(members.BackColor);
        case SurfaceMember::FillColor:
            return take(members.FillColor);
        case SurfaceMember::FillStyle:
            return take(members.FillStyle);
        case SurfaceMember::DrawMode:
            return take(members.DrawMode);
        case SurfaceMember::DrawWidth:
            return take(members.DrawWidth);
        case SurfaceMember::ScaleMode:
            return take(members.ScaleMode);
        case SurfaceMember::Font:
            return take(members.Font);
        case SurfaceMember::fontsize:
            return take(members.fontsize);
        case SurfaceMember::FontBold:
            return take(members.FontBold);
        case SurfaceMember::FontItalic:
            return take(members.FontItalic);
        case SurfaceMember::FontStrikethru:
            return take(members.FontStrikethru);
        case SurfaceMember::FontUnderline:
            return take(members.FontUnderline);
        case SurfaceMember::CurrentX:
            return take(members.CurrentX);
        case SurfaceMember::CurrentY:
            return take(members.CurrentY);
        case SurfaceMember::Orientation:
            return take(members.Orientation);
    }
}

}  // namespace kelvo
