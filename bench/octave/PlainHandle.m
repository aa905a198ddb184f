classdef PlainHandle < handle
  % A plain Octave handle class holding one value: the cost of making an
  % Octave object, without the gateway, beside VOR2.RectNode's.
  properties
    rect = [];
  end
  methods
    function obj = PlainHandle(rect)
      obj.rect = rect;
    end
  end
end
