#include "catalog.h"

// No serializer of this group has a sample yet.
const CatalogGroup catalog_event_sources{"event_sources", nullptr, 0};
