// Makes clang-tidy pass over what system headers declare, as later versions do of their own accord: looking through the
// standard library and GoogleTest for what is never told takes most of its time.

#include <clang/AST/ASTConsumer.h>
#include <clang/AST/ASTContext.h>
#include <clang/Basic/SourceManager.h>
#include <clang/Frontend/FrontendAction.h>
#include <clang/Frontend/FrontendPluginRegistry.h>

#include <memory>
#include <string>
#include <vector>

namespace {

class Scope : public clang::ASTConsumer {
public:
    void HandleTranslationUnit(clang::ASTContext& context) override {
        const clang::SourceManager& sources = context.getSourceManager();
        std::vector<clang::Decl*> own;
        for (clang::Decl* declaration : context.getTranslationUnitDecl()->decls()) {
            if (!sources.isInSystemHeader(declaration->getLocation())) {
                own.push_back(declaration);
            }
        }
        context.setTraversalScope(own);
    }
};

class ScopeBeforeChecks : public clang::PluginASTAction {
public:
    std::unique_ptr<clang::ASTConsumer> CreateASTConsumer(clang::CompilerInstance&, llvm::StringRef) override {
        return std::make_unique<Scope>();
    }
    bool ParseArgs(const clang::CompilerInstance&, const std::vector<std::string>&) override { return true; }
    ActionType getActionType() override { return AddBeforeMainAction; }
};

const clang::FrontendPluginRegistry::Add<ScopeBeforeChecks> added("scope", "passes over system headers");

} // namespace
