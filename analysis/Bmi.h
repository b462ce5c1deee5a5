#pragma once

/// The body mass index: weight in kg divided by the square of the height in m, in single
/// precision. 0 when the square is 0, be it that no height is known or that it is next to nothing.
inline float bmi(float gewicht, float groesse)
{
    const float quadrat = groesse * groesse;
    return quadrat != 0.0F ? gewicht / quadrat : 0.0F;
}
