// Writes the Octave package folder +VOR2 from the class tables: one classdef
// file a class, the two roots every class stands on (HandleBase for the
// handle kinds, ValueBase for the value kinds) and the package's functions.
// Every property and method of a class file calls the one gateway,
// __vor2__; help texts come from the tables.
//
// Usage: vor2_octave_classes OUTPUT_DIR

#include "binding/Package.h"

#include <fstream>
#include <iostream>
#include <sstream>
#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace VOR2::script;

namespace {

std::string shortName(std::string const &full) { return full.substr(full.rfind('.') + 1); }

// Help text as Octave comment lines, wrapped at about 100 columns.
std::string comment(std::string const &indent, std::string const &text)
{
    std::ostringstream out;
    std::istringstream words(text);
    std::string word, line;
    while (words >> word) {
        if (!line.empty() && line.size() + word.size() > 96) {
            out << indent << "% " << line << "\n";
            line.clear();
        }
        line += (line.empty() ? "" : " ") + word;
    }
    if (!line.empty()) out << indent << "% " << line << "\n";
    return out.str();
}

std::string quoted(std::string const &s) { return "'" + s + "'"; }

std::string methodHelp(MethodInfo const &m)
{
    std::string text = m.help;
    for (Overload const &o : m.overloads) text += " Call: " + m.name + "(" + o.arguments + ").";
    if (!m.libraryName.empty()) text += " (Library member: " + m.libraryName + ".)";
    return text;
}

// The property blocks: the writable ones, then the read-only ones, each
// with its type word and help.
void writePropertyDeclarations(std::ostream &out, ClassInfo const &c)
{
    for (bool readOnly : {false, true}) {
        bool any = false;
        for (PropertyInfo const &p : c.properties) {
            if (p.readOnly() != readOnly) continue;
            if (!any) out << (readOnly ? "  properties (Dependent, SetAccess = private)\n" : "  properties (Dependent)\n");
            any = true;
            out << "    " << p.name << " % \"" << p.typeWord << "\" " << p.help << "\n";
        }
        if (any) out << "  end\n";
    }
}

void writeHandleClass(std::ostream &out, ClassInfo const &c)
{
    std::string super = c.superclass.empty() ? "VOR2.HandleBase" : c.superclass;
    out << "classdef " << shortName(c.name) << " < " << super << "\n";
    out << comment("  ", c.name + " (" + kindName(c.kind) + "). " + c.help);
    writePropertyDeclarations(out, c);
    out << "  methods\n";
    out << "    function obj = " << shortName(c.name) << "(varargin)\n";
    out << "      obj@" << super << "(varargin{:});\n";
    out << "    end\n";
    for (PropertyInfo const &p : c.properties) {
        out << "    function v = get." << p.name << "(obj)\n";
        out << "      v = __vor2__('get', " << quoted(c.name) << ", obj, " << quoted(p.name) << ");\n";
        out << "    end\n";
        if (p.readOnly()) continue;
        out << "    function set." << p.name << "(obj, v)\n";
        out << "      __vor2__('set', " << quoted(c.name) << ", obj, " << quoted(p.name) << ", v);\n";
        out << "    end\n";
    }
    for (MethodInfo const &m : c.methods) {
        if (m.isStatic) continue;
        out << "    function varargout = " << m.name << "(obj, varargin)\n" << comment("      ", methodHelp(m));
        out << "      varargout = __vor2__('call', " << quoted(c.name) << ", obj, " << quoted(m.name)
            << ", varargin{:});\n";
        out << "    end\n";
    }
    out << "  end\n";
}

void writeValueClass(std::ostream &out, ClassInfo const &c)
{
    out << "classdef " << shortName(c.name) << " < VOR2.ValueBase\n";
    out << comment("  ", c.name + " (value). " + c.help +
                             " A copy is independent: change a value read from a property, then assign it back.");
    writePropertyDeclarations(out, c);
    out << "  methods\n";
    out << "    function obj = " << shortName(c.name) << "(varargin)\n";
    out << "      obj@VOR2.ValueBase(varargin{:});\n";
    out << "    end\n";
    for (PropertyInfo const &p : c.properties) {
        out << "    function v = get." << p.name << "(obj)\n";
        out << "      v = __vor2__('get', " << quoted(c.name) << ", obj, " << quoted(p.name) << ");\n";
        out << "    end\n";
        if (p.readOnly()) continue;
        out << "    function obj = set." << p.name << "(obj, v)\n";
        out << "      obj.state_ = __vor2__('set', " << quoted(c.name) << ", obj, " << quoted(p.name) << ", v);\n";
        out << "    end\n";
    }
    for (MethodInfo const &m : c.methods) {
        if (m.isStatic) continue;
        out << "    function varargout = " << m.name << "(obj, varargin)\n"
            << comment("      ", methodHelp(m) + " A method that changes the value returns the changed copy.");
        out << "      out = __vor2__('call', " << quoted(c.name) << ", obj, " << quoted(m.name) << ", varargin{:});\n";
        out << "      if numel(out) == 2\n        obj.state_ = out{2};\n        varargout = {obj};\n"
            << "      else\n        varargout = out;\n      end\n";
        out << "    end\n";
    }
    out << "  end\n";
}

void writeStatics(std::ostream &out, ClassInfo const &c)
{
    bool any = false;
    for (MethodInfo const &m : c.methods) {
        if (!m.isStatic) continue;
        if (!any) out << "  methods (Static)\n";
        any = true;
        out << "    function varargout = " << m.name << "(varargin)\n" << comment("      ", methodHelp(m));
        out << "      varargout = __vor2__('static', " << quoted(c.name) << ", " << quoted(m.name)
            << ", varargin{:});\n";
        out << "    end\n";
    }
    if (any) out << "  end\n";
}

char const *const HANDLE_BASE = R"(classdef HandleBase < handle
  % VOR2.HandleBase: the root of the package's handle classes. An object holds
  % the id of one library object in the binding registry; every variable and
  % every fetch of the same library object carries the same id, so == tells
  % whether two variables name one object. When the last Octave object of an
  % id goes, the registry drops its reference on the library object.
  properties (Hidden, SetAccess = private)
    id_ = 0;
  end
  methods
    function obj = HandleBase(varargin)
      if nargin == 1 && isstruct(varargin{1}) && isfield(varargin{1}, 'vor2_id__')
        obj.id_ = varargin{1}.vor2_id__;
      else
        obj.id_ = __vor2__('new', class(obj), varargin{:});
      end
    end
    function delete(obj)
      if obj.id_ ~= 0
        try
          __vor2__('release', obj.id_);
        catch
        end
      end
    end
    function r = eq(a, b)
      % True when both name the same library object.
      r = isa(a, 'VOR2.HandleBase') && isa(b, 'VOR2.HandleBase') && a.id_ == b.id_;
    end
    function r = ne(a, b)
      r = ~eq(a, b);
    end
    function r = isequal(a, b, varargin)
      r = eq(a, b);
      for k = 1:numel(varargin)
        r = r && eq(a, varargin{k});
      end
    end
    function disp(obj)
      printf('  %s object\n', class(obj));
      names = properties(obj);
      for k = 1:numel(names)
        try
          v = obj.(names{k});
          if ischar(v)
            s = ['''' v ''''];
          elseif isnumeric(v) || islogical(v)
            s = mat2str(v, 6);
          elseif iscell(v)
            s = sprintf('{%d items}', numel(v));
          else
            s = class(v);
          end
        catch err
          s = ['<' err.message '>'];
        end
        printf('    %s: %s\n', names{k}, s);
      end
    end
  end
end
)";

char const *const VALUE_BASE = R"(classdef ValueBase
  % VOR2.ValueBase: the root of the package's value classes. An object holds
  % its fields and nothing else, so assignment copies it: a value read from a
  % property must be assigned back to change the object it came from.
  properties (Hidden)
    state_ = struct();
  end
  methods
    function obj = ValueBase(varargin)
      if nargin == 1 && isstruct(varargin{1}) && isfield(varargin{1}, 'vor2_state__')
        obj.state_ = varargin{1}.vor2_state__;
      else
        obj.state_ = __vor2__('new', class(obj), varargin{:});
      end
    end
    function r = eq(a, b)
      r = strcmp(class(a), class(b)) && isequal(a.state_, b.state_);
    end
    function r = ne(a, b)
      r = ~eq(a, b);
    end
    function r = isequal(a, b, varargin)
      r = eq(a, b);
      for k = 1:numel(varargin)
        r = r && eq(a, varargin{k});
      end
    end
    function disp(obj)
      printf('  %s value\n', class(obj));
      names = properties(obj);
      for k = 1:numel(names)
        v = obj.(names{k});
        if ischar(v)
          s = ['''' v ''''];
        elseif isnumeric(v) || islogical(v)
          s = mat2str(v, 6);
        else
          s = class(v);
        end
        printf('    %s: %s\n', names{k}, s);
      end
    end
  end
end
)";

char const *const PUMP = R"(function pump(seconds)
  % VOR2.pump(): runs the library's host loop until it has nothing left to do
  % (rendering, input, tools, timers). VOR2.pump(seconds): runs it for that
  % long, keeping windows live in a script. At the prompt the loop runs by
  % itself while Octave waits for input.
  if nargin == 0
    __vor2__('pump');
  else
    __vor2__('pump', seconds);
  end
end
)";

bool write(std::string const &path, std::string const &text)
{
    std::ofstream out(path);
    out << text;
    return bool(out);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::cerr << "usage: vor2_octave_classes OUTPUT_DIR\n";
        return 2;
    }
    std::string dir = argv[1];
    ::mkdir(dir.c_str(), 0755);
    // The folder is the generator's own: class files of classes that are no
    // longer published (another branch's, a renamed one) must not linger.
    if (DIR *d = ::opendir(dir.c_str())) {
        while (dirent *e = ::readdir(d)) {
            std::string name = e->d_name;
            if (name.size() > 2 && name.compare(name.size() - 2, 2, ".m") == 0) ::unlink((dir + "/" + name).c_str());
        }
        ::closedir(d);
    }
    bool ok = write(dir + "/HandleBase.m", HANDLE_BASE) && write(dir + "/ValueBase.m", VALUE_BASE) &&
              write(dir + "/pump.m", PUMP);
    for (std::string const &name : packageClassNames()) {
        ClassInfo const &c = classInfo(name);
        std::ostringstream text;
        if (c.kind == ClassKind::Value) writeValueClass(text, c);
        else writeHandleClass(text, c);
        std::string body = text.str();
        // Static methods go in a block of their own before the final end.
        std::ostringstream statics;
        writeStatics(statics, c);
        body += statics.str() + "end\n";
        ok = write(dir + "/" + shortName(name) + ".m", body) && ok;
    }
    if (!ok) {
        std::cerr << "vor2_octave_classes: could not write into " << dir << "\n";
        return 1;
    }
    return 0;
}
