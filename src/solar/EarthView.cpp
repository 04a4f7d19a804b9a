#include "solar/EarthView.h"

EarthView::EarthView() : PlanetView(ObjectType::Planet, 302)
{}
