#include "catalog.h"

// No serializer of this group has a sample yet.
const CatalogGroup catalog_vca{"vca", nullptr, 0};
