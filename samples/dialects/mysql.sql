-- Stock ledger, MySQL. Written the way the dump tool does, so that the client restores it.
/*!40101 SET NAMES utf8mb4 */;
USE `stock`;

DROP TABLE IF EXISTS movement;
CREATE TABLE movement (
  movement_id BIGINT NOT NULL AUTO_INCREMENT,  # grows without end
  article     VARCHAR(40) NOT NULL DEFAULT 'none; see "notes"',
  note        TEXT COMMENT 'the clerk\'s words; may hold // and $$',
  quantity    DECIMAL(12,3) NOT NULL,
  PRIMARY KEY (movement_id)
);

INSERT INTO movement (article, note, quantity) VALUES
  ('bolt M8', "5--3 is two; that's sure", 5--3),
  ('nut M8', 'it''s a back\\slash: \\', 12);

DELIMITER $$

CREATE DEFINER=`root`@`localhost` PROCEDURE book(IN p_article VARCHAR(40), IN p_quantity DECIMAL(12,3))
BEGIN
  DECLARE known INT DEFAULT 0;
  SELECT COUNT(*) INTO known FROM movement WHERE article = p_article;
  IF known = 0 THEN
    SIGNAL SQLSTATE '45000' SET MESSAGE_TEXT = 'unknown article';
  END IF;
  INSERT INTO movement (article, quantity) VALUES (p_article, p_quantity);
END$$

CREATE TRIGGER movement_check BEFORE INSERT ON movement FOR EACH ROW
  SET NEW.note = CASE WHEN NEW.note IS NULL THEN '$$' ELSE NEW.note END$$

DELIMITER ;

START TRANSACTION;
CALL book('bolt M8', 4);
COMMIT;

USE archive;
CREATE FUNCTION age_in_days(d DATE) RETURNS INT DETERMINISTIC
BEGIN
  RETURN DATEDIFF(CURRENT_DATE, d);
END;
SELECT age_in_days('2024-02-29')
