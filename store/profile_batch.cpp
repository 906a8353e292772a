#include "store/profile_batch.h"

namespace quillon::store {

ProfileBatch::ProfileBatch(ProfileStore& store, const std::filesystem::path& file)
    : m_store(store)
    , m_path(store.BeginBatch(file))
{
}

ProfileBatch::~ProfileBatch()
{
    if (m_isOpen) {
        m_store.DropBatch(m_path);
    }
}

bool ProfileBatch::Commit()
{
    m_isOpen = false;
    return m_store.CommitBatch(m_path);
}

} // namespace quillon::store
