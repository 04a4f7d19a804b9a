#include "solar/UranusView.h"

UranusView::UranusView() : PlanetView(ObjectType::Planet, 306)
{}
