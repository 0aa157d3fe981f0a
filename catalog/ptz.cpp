#include "catalog.h"

// No serializer of this group has a sample yet.
const CatalogGroup catalog_ptz{"ptz", nullptr, 0};
