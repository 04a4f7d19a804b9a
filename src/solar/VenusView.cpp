#include "solar/VenusView.h"

VenusView::VenusView() : PlanetView(ObjectType::Planet, 301)
{}
