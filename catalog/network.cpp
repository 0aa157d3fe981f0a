#include "catalog.h"

// No serializer of this group has a sample yet.
const CatalogGroup catalog_network{"network", nullptr, 0};
