// A plug-in for clang-tidy that excludes system headers from the search. scripts/tidy.sh builds it.
// clang-tidy 14 searches the declarations of all headers, and then discards the diagnostics for
// system headers, most of which belong to Qt. Excluding these headers from the search halves
// the time, and does not change the diagnostics.
#include <clang/AST/ASTConsumer.h>
#include <clang/AST/ASTContext.h>
#include <clang/Frontend/FrontendPluginRegistry.h>

namespace
{

bool isOwn(const clang::Decl &declaration, const clang::SourceManager &sources)
{
    return !sources.isInSystemHeader(sources.getExpansionLoc(declaration.getLocation()));
}

/** Limits the search to our own declarations. */
class ScopeConsumer : public clang::ASTConsumer
{
public:
    void HandleTranslationUnit(clang::ASTContext &context) override
    {
        std::vector<clang::Decl *> own;
        for (clang::Decl *declaration : context.getTranslationUnitDecl()->decls()) {
            if (isOwn(*declaration, context.getSourceManager()))
                own.push_back(declaration);
        }
        context.setTraversalScope(own);
    }
};

/** Runs the consumer before clang-tidy searches the declarations. */
class ScopeAction : public clang::PluginASTAction
{
protected:
    std::unique_ptr<clang::ASTConsumer> CreateASTConsumer(clang::CompilerInstance &,
                                                          llvm::StringRef) override
    {
        return std::make_unique<ScopeConsumer>();
    }
    bool ParseArgs(const clang::CompilerInstance &, const std::vector<std::string> &) override
    {
        return true;
    }
    ActionType getActionType() override { return AddBeforeMainAction; }
};

const clang::FrontendPluginRegistry::Add<ScopeAction> REGISTRATION("own-scope",
                                                                   "searches our own code only");

} // namespace
