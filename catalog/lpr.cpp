#include "catalog.h"

// No serializer of this group has a sample yet.
const CatalogGroup catalog_lpr{"lpr", nullptr, 0};
