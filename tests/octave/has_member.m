function r = has_member(cls, name)
  % has_member(cls, name): true when the package class cls exists and has a
  % property or method called name.
  r = ~isempty(meta.class.fromName(cls)) && ...
      (any(strcmp(properties(cls), name)) || any(strcmp(methods(cls), name)));
end
