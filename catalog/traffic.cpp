#include "catalog.h"

// No serializer of this group has a sample yet.
const CatalogGroup catalog_traffic{"traffic", nullptr, 0};
