#pragma once

#include "server/Session.h"

/// What editors ask for about the files: each answers the request of the protocol that has its name, from the
/// parameters of it.
namespace Tool::Lsp {

/// What is where (Navigation.cpp).
/// @{
Json hover(Session& session, const Json& params);
Json definition(Session& session, const Json& params);
Json references(Session& session, const Json& params);
Json documentSymbol(Session& session, const Json& params);
Json workspaceSymbol(Session& session, const Json& params);
/// @}

/// What may stand at the cursor (Completion.cpp).
Json completion(Session& session, const Json& params);

/// A typeid under another name, everywhere (Renaming.cpp).
/// @{
Json prepareRename(Session& session, const Json& params);
Json rename(Session& session, const Json& params);
/// @}

/// What mends a fault (Actions.cpp).
Json codeAction(Session& session, const Json& params);

/// The layout of a document (Formatting.cpp).
Json formatting(Session& session, const Json& params);

} // namespace Tool::Lsp
