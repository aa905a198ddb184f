#include <ToolFactory>

namespace VOR2 {

GLOX::Holder<Tool> ToolFactory::createTool(GLOX::StringID const &role)
{
    GLOX::Holder<BaseToolConstructor> constructor = m_constructors.value(role);
    return constructor ? constructor->createTool() : GLOX::Holder<Tool>();
}

void ToolFactory::addToolConstructor(BaseToolConstructor *constructor)
{
    if (!constructor) return;
    GLOX::Holder<BaseToolConstructor> keep(constructor);
    m_constructors.insert(constructor->getRole(), keep);
}

} // namespace VOR2
